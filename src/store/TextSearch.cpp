#include "store/TextSearch.h"

#include "store/LetterCase.h"
#include "store/Utf8.h"
#include <algorithm>
#include <cstring>
#include <utility>

namespace {

unsigned char withoutCase(char c)
{
    return static_cast<unsigned char>(c) | 0x20;
}

} // namespace

TextSearch::TextSearch(const VerseBlock& block, std::string_view pattern)
    : m_block(block)
    , m_pattern(pattern)
{
    chooseProbes();
    chooseBits();
}

void TextSearch::chooseProbes()
{
    const std::string& piece = m_pattern.piece();
    const auto& counts = m_block.byteCounts();
    const auto rarer = [&](std::size_t a, std::size_t b) {
        return counts[withoutCase(piece[a])] < counts[withoutCase(piece[b])];
    };
    std::size_t rarest = 0;
    std::size_t second = piece.size() > 1 ? 1 : 0;
    if (rarer(second, rarest))
        std::swap(rarest, second);
    for (std::size_t i = 2; i < piece.size(); ++i) {
        if (rarer(i, rarest))
            second = std::exchange(rarest, i);
        else if (rarer(i, second))
            second = i;
    }
    if (!piece.empty()) {
        m_rarest = {rarest, withoutCase(piece[rarest])};
        m_second = {second, withoutCase(piece[second])};
    }
}

void TextSearch::chooseBits()
{
    const std::string& piece = m_pattern.piece();
    for (const char *at = piece.data(), *end = at + piece.size(); at != end;) {
        const char32_t letter = nextCharacter(at, end);
        m_bits.resize(static_cast<std::size_t>(at - piece.data()), '\xFF');
        if (toOtherCase(letter) != letter)
            m_bits.back() = '\xDF';
    }
}

std::size_t TextSearch::next(std::size_t row, std::size_t end) const
{
    const auto length = static_cast<std::ptrdiff_t>(m_pattern.piece().size());
    if (length == 0) {
        while (row < end && !m_pattern.matches(m_block.text(row)))
            ++row;
        return row;
    }
    const char* const stop = end > row ? m_block.text(end - 1).end() : nullptr;
    for (; row < end; ++row) {
        const char* const found = findPiece(m_block.text(row).begin(), stop);
        if (!found)
            return end;
        row = m_block.rowAt(found, row);
        const std::string_view text = m_block.text(row);
        if (m_pattern.isPieceAlone() ? text.end() - found >= length : m_pattern.matches(text))
            return row;
    }
    return end;
}

double TextSearch::share() const
{
    constexpr std::size_t stretches = 16;
    const std::size_t step = m_block.size() / stretches + 1;
    const std::size_t length = step / 32 + 1;
    std::size_t looked = 0;
    std::size_t found = 0;
    for (std::size_t start = 0; start < m_block.size(); start += step) {
        const std::size_t end = std::min(start + length, m_block.size());
        looked += end - start;
        for (std::size_t row = next(start, end); row < end; row = next(row + 1, end))
            ++found;
    }
    return looked ? static_cast<double>(found) / static_cast<double>(looked) : 0;
}

WIDER_WITH_AVX2 const char* TextSearch::findPiece(const char* at, const char* end) const
{
    constexpr std::ptrdiff_t stride = 256;
    const auto length = static_cast<std::ptrdiff_t>(m_pattern.piece().size());
    for (; end - at >= length + stride; at += stride) {
        const char* const first = at + m_rarest.offset;
        const char* const second = at + m_second.offset;
        unsigned char hits[stride];
        for (int i = 0; i < stride; ++i) {
            const int difference =
                (withoutCase(first[i]) ^ m_rarest.byte) | (withoutCase(second[i]) ^ m_second.byte);
            hits[i] = difference == 0;
        }
        const unsigned char* hit = hits;
        const auto rest = [&] { return static_cast<std::size_t>(hits + stride - hit); };
        while ((hit = static_cast<const unsigned char*>(std::memchr(hit, 1, rest())))) {
            if (pieceStandsAt(at + (hit - hits)))
                return at + (hit - hits);
            ++hit;
        }
    }
    for (; end - at >= length; ++at) {
        if (withoutCase(at[m_rarest.offset]) == m_rarest.byte && pieceStandsAt(at))
            return at;
    }
    return nullptr;
}

bool TextSearch::pieceStandsAt(const char* at) const
{
    const std::string& piece = m_pattern.piece();
    for (std::size_t i = 0; i < piece.size(); ++i) {
        if ((at[i] ^ piece[i]) & m_bits[i])
            return false;
    }
    return true;
}

#include "TextSearch.h"

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

std::size_t TextSearch::next(std::size_t row, std::size_t end) const
{
    if (m_pattern.piece().empty()) {
        while (row < end && !matches(row))
            ++row;
        return row;
    }
    while (row < end) {
        const char* const stop = m_block.text(end - 1).data() + m_block.text(end - 1).size();
        const char* const found = findPiece(m_block.text(row).data(), stop);
        if (!found)
            return end;
        row = m_block.rowAt(found);
        if (matches(row))
            return row;
        ++row;
    }
    return end;
}

const char* TextSearch::findPiece(const char* at, const char* end) const
{
    constexpr std::ptrdiff_t stride = 64;
    const auto length = static_cast<std::ptrdiff_t>(m_pattern.piece().size());
    for (; end - at >= length + stride; at += stride) {
        const char* const first = at + m_rarest.offset;
        const char* const second = at + m_second.offset;
        unsigned char hit = 0;
        for (int i = 0; i < stride; ++i)
            hit |= (withoutCase(first[i]) == m_rarest.byte) & (withoutCase(second[i]) == m_second.byte);
        if (!hit)
            continue;
        for (int i = 0; i < stride; ++i) {
            if (pieceStandsAt(at + i))
                return at + i;
        }
    }
    for (; end - at >= length; ++at) {
        if (pieceStandsAt(at))
            return at;
    }
    return nullptr;
}

bool TextSearch::pieceStandsAt(const char* at) const
{
    const std::string& piece = m_pattern.piece();
    if (withoutCase(at[m_rarest.offset]) != m_rarest.byte)
        return false;
    for (std::size_t i = 0; i < piece.size(); ++i) {
        if (withoutCase(at[i]) != withoutCase(piece[i]))
            return false;
    }
    return true;
}

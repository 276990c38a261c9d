#pragma once

#include "store/LikePattern.h"
#include "store/VerseBlock.h"

/// The compiler makes one version for any x86-64 processor and one for those with AVX2, whose registers are
/// twice as wide; the program picks one as it is loaded, which files in the ELF format can. Elsewhere there
/// is one width.
#if defined(__x86_64__) && defined(__ELF__)
#define WIDER_WITH_AVX2 [[gnu::target_clones("avx2", "default")]]
#else
#define WIDER_WITH_AVX2
#endif

/// Finds the rows of a block whose text matches a pattern, in order. The block must outlive it.
///
/// Instead of trying the pattern on every row it sweeps over all texts for the two rarest bytes of the
/// pattern's longest piece, letter case aside, in a loop that the compiler turns into vector instructions.
class TextSearch
{
public:
    /// Throws DataError 93, "Invalid pattern string".
    TextSearch(const VerseBlock& block, std::string_view pattern);

    /// row < VerseBlock::size().
    bool matches(std::size_t row) const { return next(row, row + 1) == row; }

    /// The first matching row from `row` on and before `end`; `end` if there is none. `end` is at most the
    /// number of rows.
    std::size_t next(std::size_t row, std::size_t end) const;

    /// The share of the rows that match, 0 to 1, roughly: as in a few stretches spread over the block.
    double share() const;

private:
    struct Probe
    {
        std::size_t offset;
        unsigned char byte;
    };

    void chooseProbes();
    void chooseBits();
    WIDER_WITH_AVX2 const char* findPiece(const char* at, const char* end) const;
    bool pieceStandsAt(const char* at) const;

    const VerseBlock& m_block;
    LikePattern m_pattern;
    std::string m_bits; ///< of each byte of the piece, those that a text must share: all, or all but 0x20
    Probe m_rarest{};
    Probe m_second{};
};

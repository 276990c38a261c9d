#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A LIKE pattern, compiled once and matched against whole texts.
///
///     *          any run of characters, also none
///     ?          one character
///     #          one digit, 0 to 9
///     [abc]      one of these characters; "*", "?", "#", "[" and "!" (unless first) stand for themselves
///     [a-f]      one of a range by code point; a "-" that is first or last, or follows a range, is itself
///     [!...]     one character that the class does not hold
///     [!]        an exclamation mark
///     []         nothing: the empty text
///     other      the character itself, "]" and "!" among them
///
/// A letter equals its other case (see LetterCase.h), in classes too: [a-z] holds "K". A class ends at its
/// first "]"; one that never ends and a range that descends make the pattern invalid. "?" and [!...] need a
/// character: they match nothing at the end of a text. Bytes that are no UTF-8 are one character each and
/// equal only themselves.
class LikePattern
{
public:
    /// Throws DataError 93, "Invalid pattern string".
    explicit LikePattern(std::string_view pattern);

    /// Takes time in proportion to the length of the text, whatever the pattern holds, as long as it has at
    /// most 63 steps besides "*"; with more, that time for each further 64.
    bool matches(std::string_view text) const;

    /// What every match begins with, once folded by foldCase().
    const std::string& prefix() const { return m_prefix; }

    /// The longest of the pieces that every match contains, small letters for both cases. Only characters
    /// that differ from their other case in bit 0x20 of their last byte, if at all: ASCII and the accented
    /// letters of Latin-1.
    const std::string& piece() const { return m_piece; }

    /// Whether every text that contains that piece matches.
    bool isPieceAlone() const { return m_isPieceAlone; }

private:
    enum class Kind { AnyRun, AnyCharacter, Digit, Letter, Class };
    struct Step
    {
        Kind kind;
        char32_t value; ///< the folded letter, or the place of the class
    };
    struct Range
    {
        char32_t first;
        char32_t last;
    };
    struct Class
    {
        bool negated;
        std::vector<Range> ranges;
    };
    /// Bits of places, the lowest first. Place n of a pattern is behind its first n steps, runs not counted.
    using Places = std::uint64_t;

    void readClass(const char*& at, const char* end);
    void findPieces();
    void layOut();
    bool accepts(const Step& step, char32_t character, char32_t otherCase) const;
    const Places* findAccepting(char32_t character, Places* places) const;
    template <class Words>
    bool matchesFrom(Words reached, Words rare, std::string_view text) const;

    std::vector<Step> m_steps;
    std::vector<Class> m_classes;
    std::size_t m_end = 0;         ///< the last place
    std::vector<Places> m_runs;    ///< places that a run stands at
    std::vector<Places> m_accepts; ///< for each character of Latin-1, places that the next step accepts it at
    std::string m_prefix;
    std::string m_piece;
    bool m_isPieceAlone = false;
};

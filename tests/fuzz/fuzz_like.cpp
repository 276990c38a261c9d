// LikePattern against a plain witness. Input: the pattern, a line feed, the text.
#include "store/DataError.h"
#include "store/LikePattern.h"
#include "support/SlowLike.h"
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const auto cut = input.find('\n');
    const std::string_view pattern = input.substr(0, cut);
    const std::string_view text = cut == input.npos ? "" : input.substr(cut + 1);
    std::optional<bool> actual;
    try {
        const LikePattern like(pattern);
        actual = like.matches(text);
        // Whatever matches begins and goes on as the pattern says of itself.
        const std::string folded = foldCase(text);
        if (*actual && (!folded.starts_with(like.prefix()) || folded.find(like.piece()) == folded.npos))
            std::abort();
        if (like.isPieceAlone() && *actual != (folded.find(like.piece()) != folded.npos))
            std::abort();
    } catch (const DataError& error) {
        if (error.number() != 93)
            std::abort();
    }
    if (actual != slow_like::matches(pattern, text))
        std::abort();
    return 0;
}

#pragma once

#include "store/DataError.h"
#include "store/KeyIndex.h"
#include <optional>

/// What the verse table and LIKE work on: the block and its index, or why they could not be read.
struct Verses
{
    std::optional<VerseBlock> block;
    std::optional<KeyIndex> keys;
    std::optional<DataError> damage;
};

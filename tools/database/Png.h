#pragma once

#include <string>
#include <string_view>

bool isPng(std::string_view picture);

/// The picture with the resolution at which it shows `width` by `height` pixels large on a screen of 96 dots
/// an inch, however many pixels it holds. Any resolution it had is replaced; nothing else changes. Throws
/// InputError when the picture is damaged.
std::string withNaturalSize(std::string_view png, int width, int height);

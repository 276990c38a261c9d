#pragma once

/// The least height of a row in a list or tree, in pixels: less is hard to hit.
constexpr int minRowHeight = 17;

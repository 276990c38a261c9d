#pragma once

#include <string>
#include <string_view>

/// Mends spacing, quotation marks and dashes of a verse in ten steps. No letter and no digit changes, and on
/// the published text a second run changes nothing. Takes and gives UTF-8; what is not valid UTF-8 comes back
/// unchanged.
std::string mendTypography(std::string_view verse);

#pragma once

#include <stdexcept>

/// Something in the files the data is made of is not as it must be. what() names the place and is meant for
/// the person who runs the build.
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

#pragma once

#include <stdexcept>
#include <string>

/// An error of the data engine: its number and its own description.
/// Numbers are the engine's result codes, or 93 ("Invalid pattern string") for a LIKE pattern that cannot be
/// valid.
class DataError : public std::runtime_error
{
public:
    DataError(int errorNumber, const std::string& description)
        : std::runtime_error(description)
        , m_number(errorNumber)
    {
    }

    int number() const { return m_number; }
    std::string description() const { return what(); }

private:
    int m_number;
};

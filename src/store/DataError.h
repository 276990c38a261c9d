#pragma once

#include <stdexcept>
#include <string>

/// An error of SQLite, in its own words. The number is its result code, or 93 ("Invalid pattern string") for
/// a LIKE pattern that cannot be valid.
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

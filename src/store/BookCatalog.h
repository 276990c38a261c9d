#pragma once

#include <array>
#include <string>
#include <string_view>

/// One of the 66 books. All texts are UTF-8 and live for the whole program.
struct Book
{
    int place;                     ///< 1..66 in canonical order, Old Testament first
    std::string_view name;         ///< Portuguese name, as in "Gênesis"
    std::string_view abbreviation; ///< first part of every verse key, case-sensitive, as in "Gn"
    std::string_view testament;    ///< "Old Testament" or "New Testament"
    std::string_view group;        ///< as in "Pentateuch"; empty for Acts and Revelation

    /// What the tree of books shows: the name, " -- " and the abbreviation.
    std::string treeText() const;
    /// The abbreviation with ":", which addresses this book alone in a lookup by prefix.
    std::string prefix() const;
};

/// The books in canonical order. This is not the order of `VerseNumber`, which puts the New Testament first.
const std::array<Book, 66>& bookCatalog();

// Lists of names in messages, mostly of those that would have been accepted. Header only, for tools of either
// build.
#ifndef COMMON_CHOICES_H
#define COMMON_CHOICES_H

#include <string>

// "A, B, C". `nameOf` gives each row's name.
template <typename Rows, typename NameOf>
std::string Listing(const Rows& rows, const NameOf& nameOf) {
    std::string names;
    for (const auto& row : rows)
        names += (names.empty() ? "" : ", ") + std::string(nameOf(row));
    return names;
}

// "possible: A, B, C", or "possible: none".
template <typename Rows, typename NameOf>
std::string Choices(const Rows& rows, const NameOf& nameOf) {
    const std::string names = Listing(rows, nameOf);
    return "possible: " + (names.empty() ? "none" : names);
}

// The same of rows that are names themselves.
template <typename Names>
std::string Choices(const Names& names) {
    return Choices(names, [](const auto& name) { return std::string(name); });
}

#endif

// Rows of a table of the module, for whoever goes through them.
#ifndef DIALOGS_ROWS_H
#define DIALOGS_ROWS_H

#include <cstddef>

// A table lives as long as the module.
template <typename Row>
struct Rows {
    constexpr Rows() = default;
    template <size_t Count>
    constexpr Rows(const Row (&rows)[Count]) : first(rows), count(Count) {} // a table is its rows

    constexpr const Row* begin() const { return first; }
    constexpr const Row* end() const { return first + count; }

    const Row* first = nullptr;
    size_t count = 0;
};

#endif

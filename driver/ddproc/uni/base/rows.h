// A range of rows in memory: of a table, or of a list in a block.
#ifndef BASE_ROWS_H
#define BASE_ROWS_H

#include <cstddef>

// Owns nothing: valid as long as its rows.
template <typename Row>
struct Rows {
    constexpr Rows() = default;
    constexpr Rows(const Row* firstRow, size_t rowCount) : first(firstRow), count(rowCount) {}
    template <size_t Count>
    constexpr Rows(const Row (&rows)[Count]) : first(rows), count(Count) {} // a table is its rows

    constexpr const Row* begin() const { return first; }
    constexpr const Row* end() const { return first + count; }
    constexpr const Row& operator[](size_t i) const { return first[i]; }

    const Row* first = nullptr;
    size_t count = 0;
};

#endif

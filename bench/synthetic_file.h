// Parameter data files of any number of items, for the measurement of growth.
#ifndef BENCH_SYNTHETIC_FILE_H
#define BENCH_SYNTHETIC_FILE_H

#include <cstddef>
#include <cstdint>
#include <vector>

// A whole file in which every list has this many items, each with a key and a display name of its own.
std::vector<uint8_t> SyntheticFile(size_t itemsPerList);

// Lists that such a file has.
size_t SyntheticListCount();

#endif

// How often a test repeats what must not leak.
#ifndef TEST_SUPPORT_ROUNDS_H
#define TEST_SUPPORT_ROUNDS_H

#include <cstdlib>

// The second number in a long run, as `./dev test --long` makes it.
inline int Rounds(int daily, int inLongRun) {
    return std::getenv("LUMORA_LONG_TESTS") != nullptr ? inLongRun : daily;
}

#endif

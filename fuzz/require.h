// What every fuzz target uses to say that a condition does not hold: the program ends, which is a finding.
#ifndef FUZZ_REQUIRE_H
#define FUZZ_REQUIRE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// The target: the fuzzer calls it with every input that it makes, the regression test with its own.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count);

inline void Require(bool condition, const char* what) {
    if (condition)
        return;
    fprintf(stderr, "%s\n", what);
    abort();
}

#endif

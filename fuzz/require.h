// What every fuzz target uses to say that a condition does not hold: the program ends, which is a finding.
#ifndef FUZZ_REQUIRE_H
#define FUZZ_REQUIRE_H

#include <cstdio>
#include <cstdlib>

inline void Require(bool condition, const char* what) {
    if (condition)
        return;
    fprintf(stderr, "%s\n", what);
    abort();
}

#endif

#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, which is how a fuzzer learns that the present input is a finding.
inline void expectThat(bool holds, const char* claim)
{
    if (holds)
        return;
    std::fprintf(stderr, "Not so: %s\n", claim);
    std::abort();
}

#pragma once

#include <string>
#include <vector>

/// What the host library of this program was asked for: it supplies nothing but the bounded copy.
struct BoundedCopyRecorder
{
    struct Copy
    {
        int size;
        std::string source;
    };

    std::vector<Copy> copies;
    /// What the copy does besides: nothing, or it throws one of two kinds.
    enum
    {
        Works,
        ThrowsException,
        ThrowsInt
    } behaviour = Works;
};

extern BoundedCopyRecorder g_boundedCopies;

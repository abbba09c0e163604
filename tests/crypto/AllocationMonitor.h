#pragma once

#include <cstddef>

/// Watches the allocations of this thread during its life, and lets one of them fail.
class AllocationMonitor
{
public:
    /// Allocations up to number `allowed` succeed; the next one throws std::bad_alloc.
    explicit AllocationMonitor(std::size_t allowed = ~std::size_t{0});
    ~AllocationMonitor();
    AllocationMonitor(const AllocationMonitor&) = delete;
    AllocationMonitor& operator=(const AllocationMonitor&) = delete;

    /// Whether the failing allocation was reached.
    static bool hasFailed();

    /// The size in bytes of the largest allocation.
    static std::size_t largest();

    /// Allocations less releases since the object was made.
    static long balance();
};

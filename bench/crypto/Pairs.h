#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// An operation of ours and a peer's, over the same number of bytes.
struct Pair
{
    std::string name;
    std::size_t bytes;
    /// The ratio of throughputs, ours over the peer's, that is wanted; 0 where none is.
    double wanted;
    std::function<void()> ours;
    std::function<void()> peer;
    /// Whether the processor's caches are emptied before each operation, as they are where a
    /// library calls once in a while.
    bool isCold = false;
};

using Pairs = std::vector<Pair>;

/// What one process found for a pair, in bytes a second.
struct Result
{
    std::string name;
    double wanted;
    double ours;
    double peer;
};

/// Runs each pair several times in turn; the throughputs are the medians.
std::vector<Result> runPairs(const Pairs& pairs);

/// Pairs whose peers run without the processor's AES instructions and vector extensions.
void addCipherPairs(Pairs& pairs);

/// Pairs whose peers run as they come.
void addDigestPairs(Pairs& pairs);
void addBase64Pairs(Pairs& pairs);

/// OpenSSL alone, to see whether its instructions are masked.
void addMaskProbe(Pairs& pairs);

/// Bytes of any value, always the same.
std::string sampleBytes(std::size_t count);

/// The characters of `text` as the peers take them.
const unsigned char* bytesOf(const std::string& text);
unsigned char* bytesOf(std::string& text);

#pragma once

#include <cstddef>

// In bytes of UTF-8. Each text is one long line: showing a longer one would stall the window.

/// Base64 text, the cipher text included.
constexpr std::size_t largestBase64 = std::size_t{64} * 1024;

/// What is encoded: it fills that.
constexpr std::size_t largestEncoded = largestBase64 / 4 * 3;

/// What is encrypted: its padding takes a byte at least.
constexpr std::size_t largestEncrypted = largestEncoded - 1;

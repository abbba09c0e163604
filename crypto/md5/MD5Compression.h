#pragma once

#include <cstddef>
#include <cstdint>

namespace md5 {

/// The chaining words A, B, C and D.
using State = std::uint32_t[4];

/// What A, B, C and D begin with.
inline constexpr State initialState = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};

/// Takes `count` blocks of 64 bytes, which are words in little-endian order, into the state.
void compress(State& state, const unsigned char* blocks, std::size_t count);

} // namespace md5

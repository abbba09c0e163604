#pragma once

#include <cstddef>
#include <cstdint>

/// The compression of whole 64-byte blocks into the eight words of the state.
namespace sha256 {

/// W0..W63 of one 64-byte block.
void expandSchedule(const unsigned char* block, std::uint32_t* words);

/// One compression of `state` with a schedule of 64 words.
void compressSchedule(std::uint32_t* state, const std::uint32_t* words);

/// Compresses `count` blocks in portable code.
void compressPortable(std::uint32_t* state, const unsigned char* blocks, std::size_t count);

/// Whether this processor has SHA-256 instructions that `compressHardware` can use.
bool hasHardware();

/// Compresses `count` blocks by those instructions. Call only where `hasHardware`.
void compressHardware(std::uint32_t* state, const unsigned char* blocks, std::size_t count);

/// Compresses `count` blocks the fastest way that this processor has, chosen once.
void compress(std::uint32_t* state, const unsigned char* blocks, std::size_t count);

} // namespace sha256

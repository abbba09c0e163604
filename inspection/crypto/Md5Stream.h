#pragma once

#include "inspection/crypto/BlockBuffer.h"

#include <string>

/// What `MD5::Encode` gives for a text that comes in pieces, with its departures from RFC 1321:
/// bytes from 0x80 on are sign-extended into their word, only 32 bits of the length are stored, and
/// a length of 57 to 63 modulo 64 is followed by 2^23 blocks of padding, which can be worked off in
/// steps.
class Md5Stream
{
public:
    void add(const char* bytes, std::size_t count);

    /// Ends the text. Then call `pad` until it returns false.
    void end();
    /// Works off up to `blocks` blocks of padding; false when none is left.
    bool pad(std::size_t blocks);
    /// The digest, once nothing is left to pad: 32 lower-case hexadecimal characters.
    std::string hexDigest() const;

    /// Blocks of padding that are still to be worked off.
    std::uint64_t paddingLeft() const { return m_paddingLeft; }
    std::uint64_t length() const { return m_buffer.length(); }

    /// True when the text had a byte from 0x80 on that is not the last one of its word of four.
    bool hasExtendedByte() const { return m_extended; }
    /// True when the length makes the padding 2^23 blocks longer than RFC 1321 has it.
    bool hasLongPadding() const;

private:
    void takeBlocks(const char* blocks, std::size_t count);
    void takeWords(const std::uint32_t* words);

    std::uint32_t m_state[4] = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
    BlockBuffer m_buffer;
    std::uint64_t m_paddingLeft = 0;
    bool m_extended = false;
};

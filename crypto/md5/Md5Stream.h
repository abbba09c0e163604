#pragma once

#include "crypto/BlockBuffer.h"
#include "crypto/md5/MD5Ending.h"

#include <cstdint>
#include <string>

/// What `MD5::Encode` gives for a text that comes in pieces, with its departures from RFC 1321.
/// The padding of a text of 57 to 63 bytes modulo 64 has 2^23 blocks, which can be compressed in
/// steps too.
class Md5Stream
{
public:
    /// Takes the next `count` bytes of the text.
    void add(const char* bytes, std::size_t count);

    /// Ends the text. Then call `pad` until it returns false.
    void end();
    /// Compresses up to `blocks` blocks of padding; false when none is left.
    bool pad(std::uint64_t blocks);
    /// The digest, once nothing is left to pad: 32 lower-case hexadecimal characters.
    std::string hexDigest() const;

    /// The number of blocks of padding that are still to be compressed.
    std::uint64_t paddingLeft() const { return m_ending.blocksLeft(); }
    /// The number of all bytes so far.
    std::uint64_t length() const { return m_buffer.length(); }

    /// True when the sign of a byte from 0x80 on has changed its word, so that the digest is not
    /// that of RFC 1321. The last byte of a word of four changes nothing, and neither does one
    /// behind which the word has only bytes of 0xFF.
    bool isSignExtended() const { return m_signExtended; }
    /// True when the length makes the padding 2^23 blocks longer than RFC 1321 has it.
    bool hasLongPadding() const { return md5::hasLongPadding(length()); }
    /// True when the length in bits does not fit the 32 bits that are stored of it.
    bool hasCutLength() const { return md5::storedLength(length()) != 8 * length(); }

private:
    md5::State m_state = {md5::initialState[0], md5::initialState[1], md5::initialState[2],
                          md5::initialState[3]};
    BlockBuffer m_buffer;
    md5::Ending m_ending;
    bool m_signExtended = false;
};

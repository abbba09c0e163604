#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// MD5 (RFC 1321) of a string, with three departures in its padding, all of them intended: texts
/// whose length is 57 to 63 modulo 64 are padded with about 2^23 blocks, bytes from 0x80 on are
/// sign-extended into their word, and the length is stored in 32 bits.
///
/// The order of the virtual operations, the absence of a virtual destructor and the order of the
/// members are relied upon by callers outside. One object is good for one digest; use it from one
/// thread.
class MD5
{
public:
    /// The digest of all bytes of `text` as 32 lower-case hexadecimal characters, and sets the word
    /// count as `Padding` does. The state is not reset: a second call goes on from it.
    ///
    /// In a derived class `Padding` is called, with all that it allocates, and the digest is that
    /// of the words it returns: of their whole blocks of 16, as many as the word count holds too.
    /// An override that does not call the base's `Padding` leaves the word count as it was.
    virtual std::string Encode(std::string text);

    /// The padded message. Allocates 512 MiB for texts of 57 to 63 bytes modulo 64; `Encode` of an
    /// `MD5` itself makes do without it.
    virtual std::vector<std::uint32_t> Padding(std::string text);

    /// `value` as 8 lower-case hexadecimal characters, least significant byte first.
    virtual std::string Format(unsigned int value);

    /// Takes one block of 16 words, which must not be null, into the state. `count` is not used.
    void IterateFunc(unsigned int* block, int count);

private:
    void takeText(const std::string& text);
    void takeWords(std::vector<std::uint32_t> words);

    std::uint32_t m_state[4] = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
    std::uint32_t m_wordCount = 0;
};

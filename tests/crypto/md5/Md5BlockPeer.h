#pragma once

#include <array>
#include <cstdint>
#include <string>

/// OpenSSL's MD5 block by block, which leaves the padding to the caller.
class Md5BlockPeer
{
public:
    Md5BlockPeer();
    ~Md5BlockPeer();
    Md5BlockPeer(const Md5BlockPeer&) = delete;
    Md5BlockPeer& operator=(const Md5BlockPeer&) = delete;

    /// Takes one block of 16 words in.
    void take(const std::uint32_t* block);

    std::array<std::uint32_t, 4> state() const;

    /// The state as 32 lower-case hexadecimal digits.
    std::string digest() const;

private:
    void* m_context;
};

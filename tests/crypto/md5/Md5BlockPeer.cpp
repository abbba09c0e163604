// The single-block function is deprecated, but no other can be given any padding. Its header
// declares a function of the same name as our class, so it stays in this file.
#define OPENSSL_SUPPRESS_DEPRECATED

#include "tests/crypto/md5/Md5BlockPeer.h"

#include "tests/crypto/Bytes.h"

#include <openssl/md5.h>

#include <cstring>

Md5BlockPeer::Md5BlockPeer() : m_context(new MD5_CTX)
{
    MD5_Init(static_cast<MD5_CTX*>(m_context));
}

Md5BlockPeer::~Md5BlockPeer()
{
    delete static_cast<MD5_CTX*>(m_context);
}

void Md5BlockPeer::take(const std::uint32_t* block)
{
    MD5_Transform(static_cast<MD5_CTX*>(m_context), reinterpret_cast<const unsigned char*>(block));
}

std::array<std::uint32_t, 4> Md5BlockPeer::state() const
{
    const auto* context = static_cast<const MD5_CTX*>(m_context);
    return {context->A, context->B, context->C, context->D};
}

std::string Md5BlockPeer::digest() const
{
    const std::array<std::uint32_t, 4> words = state();
    std::string bytes(16, '\0');
    std::memcpy(bytes.data(), words.data(), bytes.size());
    return toHex(bytes);
}

#include "crypto/CipherStream.h"

#include "crypto/Base64Encoder.h"
#include "crypto/base64/Base64Extent.h"

#include <algorithm>

namespace {

// Whole blocks and whole groups of Base64.
constexpr std::size_t unit = 3 * cipherBlockSize;
constexpr std::size_t group = 4; // characters of Base64

} // namespace

EncryptionStream::EncryptionStream(const CipherKeys& keys) : m_cipher(makeCipher(keys)) {}

std::string EncryptionStream::add(const char* bytes, std::size_t count)
{
    const char* zero = m_zeroByte ? bytes : std::find(bytes, bytes + count, '\0');
    const auto before = static_cast<std::size_t>(zero - bytes);
    if (!m_zeroByte && before < count)
        m_zeroByte = m_size + before;
    m_pending.append(bytes, before);
    m_pending.append(count - before, '\0');
    m_size += count;
    return encrypted(m_pending.size() / unit * unit);
}

std::string EncryptionStream::finish()
{
    const std::size_t padding = cipherBlockSize - m_pending.size() % cipherBlockSize;
    m_pending.append(padding, static_cast<char>(padding));
    return encrypted(m_pending.size());
}

std::string EncryptionStream::encrypted(std::size_t count)
{
    std::string output(count, '\0');
    m_cipher.Encrypt(m_pending.data(), output.data(), count, AesEncrypt::CBC);
    m_pending.erase(0, count);
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(output.data()),
                                 static_cast<unsigned int>(count));
}

DecryptionStream::DecryptionStream(const CipherKeys& keys) : m_cipher(makeCipher(keys)) {}

std::string DecryptionStream::add(const char* characters, std::size_t count)
{
    if (m_hasEnded)
        return {};
    m_characters.append(characters, count);
    m_hasEnded = base64::extentOf(m_characters).length < m_characters.size();
    const std::size_t ready =
        m_hasEnded ? m_characters.size() : m_characters.size() / group * group;
    decode(m_characters.substr(0, ready));
    m_characters.erase(0, ready);
    if (m_decrypted.size() <= maxPadding)
        return {};
    const std::size_t sure = m_decrypted.size() - maxPadding;
    std::string text = beforeZero(m_decrypted.substr(0, sure));
    m_decrypted.erase(0, sure);
    return text;
}

Decryption DecryptionStream::finish()
{
    decode(m_characters);
    Decryption result;
    result.cipherSize = m_cipherSize;
    result.padding = removePadding(m_decrypted);
    result.bytes = beforeZero(m_decrypted);
    return result;
}

void DecryptionStream::decode(const std::string& characters)
{
    const std::string bytes = Base64Encoder::Decode(characters);
    m_cipherSize += bytes.size();
    m_encrypted += bytes;
    decrypt();
}

void DecryptionStream::decrypt()
{
    const std::size_t count = m_encrypted.size() / cipherBlockSize * cipherBlockSize;
    std::string output(count, '\0');
    m_cipher.Decrypt(m_encrypted.data(), output.data(), count, AesEncrypt::CBC);
    m_encrypted.erase(0, count);
    m_decrypted += output;
}

std::string DecryptionStream::beforeZero(std::string bytes)
{
    const std::size_t kept = m_hasZero ? 0 : std::min(bytes.find('\0'), bytes.size());
    m_hasZero = m_hasZero || kept < bytes.size();
    m_leftOut += bytes.size() - kept;
    bytes.resize(kept);
    return bytes;
}

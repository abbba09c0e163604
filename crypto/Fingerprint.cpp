#include "crypto/Fingerprint.h"

#include "crypto/Base64Encoder.h"
#include "crypto/MD5.h"

#include <algorithm>

void FingerprintStream::add(const char* bytes, std::size_t count)
{
    const char* zero = std::find(bytes, bytes + count, '\0');
    if (!m_beforeZero && zero != bytes + count) {
        m_beforeZero = m_whole;
        m_beforeZero->add(bytes, static_cast<std::size_t>(zero - bytes));
    }
    m_whole.add(bytes, count);
}

std::string FingerprintStream::fingerprint() const
{
    if (m_whole.length() == 0)
        return {};
    const Sha256Stream::Digest digest = m_beforeZero ? m_beforeZero->digest() : m_whole.digest();
    return Base64Encoder::UrlEncode(
        Base64Encoder::Encode(digest.data(), static_cast<unsigned int>(digest.size())));
}

std::optional<std::uint64_t> FingerprintStream::zeroByte() const
{
    if (!m_beforeZero)
        return {};
    return m_beforeZero->length();
}

// The shorter fingerprint comes first, and what the longer one has more stands at the end.
std::string mixFingerprints(const std::string& first, const std::string& second)
{
    const bool swapped = second.size() < first.size();
    const std::string& shorter = swapped ? second : first;
    const std::string& longer = swapped ? first : second;
    std::string mixed;
    for (std::size_t i = 0; i < shorter.size(); ++i) {
        mixed += shorter[i];
        mixed += longer[i];
    }
    mixed.append(longer, shorter.size());
    return MD5().Encode(mixed);
}

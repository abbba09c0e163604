#include "bench/crypto/Pairs.h"

#include "crypto/Base64Encoder.h"

#include <glib.h>
#include <openssl/evp.h>

#include <QByteArray>

#include <algorithm>

namespace {

constexpr std::size_t size = 65536;

std::string ownText(const std::string& bytes)
{
    return Base64Encoder::Encode(bytesOf(bytes), static_cast<unsigned int>(bytes.size()));
}

std::string standardText(const std::string& bytes)
{
    std::string text = ownText(bytes);
    std::replace(text.begin(), text.end(), '-', '+');
    std::replace(text.begin(), text.end(), '_', '/');
    return text;
}

/// The peers' buffers are made for each call too.
void openSslEncode(const std::string& bytes)
{
    std::string text(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    EVP_EncodeBlock(bytesOf(text), bytesOf(bytes), static_cast<int>(bytes.size()));
}

void openSslDecode(const std::string& text)
{
    std::string bytes(text.size() / 4 * 3 + 1, '\0');
    EVP_DecodeBlock(bytesOf(bytes), bytesOf(text), static_cast<int>(text.size()));
}

void glibDecode(const std::string& text)
{
    gsize length = 0;
    g_free(g_base64_decode(text.c_str(), &length));
}

constexpr QByteArray::Base64Options urlSafe = QByteArray::Base64UrlEncoding;

} // namespace

void addBase64Pairs(Pairs& pairs)
{
    const std::string bytes = sampleBytes(size);
    const std::string text = ownText(bytes);
    const std::string standard = standardText(bytes);
    const auto qtBytes = QByteArray::fromStdString(bytes);
    const auto qtText = QByteArray::fromStdString(text);
    const auto encode = [bytes] { return ownText(bytes); };
    const auto decode = [text] { return Base64Encoder::Decode(text); };
    const auto add = [&pairs](const char* name, auto own, auto peer) {
        pairs.push_back({std::string(name) + ", 65536 bytes", size, 1.2, own, peer});
    };
    add("Base64 encode / OpenSSL EVP", encode, [bytes] { openSslEncode(bytes); });
    add("Base64 encode / Qt", encode, [qtBytes] { return qtBytes.toBase64(urlSafe); });
    add("Base64 encode / GLib", encode,
        [bytes] { g_free(g_base64_encode(bytesOf(bytes), bytes.size())); });
    add("Base64 decode / OpenSSL EVP", decode, [standard] { openSslDecode(standard); });
    add("Base64 decode / Qt", decode, [qtText] { return QByteArray::fromBase64(qtText, urlSafe); });
    add("Base64 decode / GLib", decode, [standard] { glibDecode(standard); });
}

#include "crypto/Fingerprint.h"

#include "crypto/Encrypt.h"
#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>

namespace {

FingerprintStream streamOf(const std::string& text, std::size_t split)
{
    FingerprintStream stream;
    stream.add(text.data(), split);
    stream.add(text.data() + split, text.size() - split);
    return stream;
}

TEST(FingerprintStreamTest, GivesTheFingerprintOfTheFacadeAtEverySplitOfEveryLength)
{
    std::string bytes = RandomBytes(56)(300);
    for (char& byte : bytes)
        byte = byte == '\0' ? 'x' : byte;
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        const std::string text = bytes.substr(0, length);
        const std::string expected = Encrypt::Sha256Encode(text);
        for (std::size_t split = 0; split <= length; ++split)
            ASSERT_EQ(expected, streamOf(text, split).fingerprint()) << length << " at " << split;
        EXPECT_FALSE(streamOf(text, 0).zeroByte()) << length;
    }
}

TEST(FingerprintStreamTest, EndsAtTheFirstZeroByteWhereverItIsSplit)
{
    for (const std::size_t zero : {0U, 1U, 63U, 64U, 65U, 99U}) {
        std::string text(100, 'a');
        text[zero] = '\0';
        text.back() = '\0';
        const std::string expected = zero == 0 ? Encrypt::Sha256Encode(std::string(1, '\0'))
                                               : Encrypt::Sha256Encode(text.substr(0, zero));
        for (std::size_t split = 0; split <= text.size(); ++split) {
            const FingerprintStream stream = streamOf(text, split);
            ASSERT_EQ(expected, stream.fingerprint()) << zero << " at " << split;
            ASSERT_EQ(zero, stream.zeroByte()) << zero << " at " << split;
            ASSERT_EQ(text.size(), stream.whole().length());
        }
    }
}

TEST(MixFingerprints, GivesTheDigestOfTheFacade)
{
    for (const char* first : {"", "first", "a"}) {
        for (const char* second : {"", "second", "a"}) {
            EXPECT_EQ(Encrypt::KdEncode(first, second),
                      mixFingerprints(Encrypt::Sha256Encode(first), Encrypt::Sha256Encode(second)));
        }
    }
}

} // namespace

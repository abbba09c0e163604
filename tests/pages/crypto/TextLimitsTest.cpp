#include "tests/pages/crypto/CryptoPageTest.h"

namespace {

// As many bytes of UTF-8, in Chinese but for what is left over.
QString chinese(int bytes)
{
    return QString(bytes / 3, QChar(0x4e2d)) + QString(bytes % 3, 'x');
}

QString ascii(int bytes)
{
    return QString(bytes, 'x');
}

constexpr int largestEncrypted = 48 * 1024 - 1;
constexpr int largestEncoded = 48 * 1024;
constexpr int largestBase64 = 64 * 1024;

using CipherLimitsTest = CryptoPageTest;

TEST_F(CipherLimitsTest, TheLongestTextIsEncryptedAndDecryptedBack)
{
    enterPassPhrase(passPhrase);
    for (const QString& text : {ascii(largestEncrypted), chinese(largestEncrypted)}) {
        clear()->setPlainText(text);
        pressEncrypt();
        EXPECT_EQ(status().rfind("Bytes encrypted: 49,151.", 0), 0U) << status();
        EXPECT_EQ(cipher()->toPlainText().size(), largestBase64);
        clear()->setPlainText("older");
        pressDecrypt();
        EXPECT_EQ(status().rfind("Bytes decrypted: 49,151.", 0), 0U) << status();
        EXPECT_TRUE(clear()->toPlainText() == text);
    }
}

TEST_F(CipherLimitsTest, OneByteMoreIsRefused)
{
    enterPassPhrase(passPhrase);
    for (const QString& text : {ascii(largestEncrypted + 1), chinese(largestEncrypted + 1)}) {
        clear()->setPlainText(text);
        cipher()->setPlainText("older");
        pressEncrypt();
        EXPECT_EQ(status(), "The text is too long: 49,152 bytes. At most 49,151 are taken.");
        EXPECT_EQ(cipher()->toPlainText(), "older");
    }
}

TEST_F(CipherLimitsTest, OneByteMoreOfTheCipherTextIsRefused)
{
    enterPassPhrase(passPhrase);
    for (const QString& text : {ascii(largestBase64 + 1), chinese(largestBase64 + 1)}) {
        clear()->setPlainText("older");
        cipher()->setPlainText(text);
        pressDecrypt();
        EXPECT_EQ(status(), "The text is too long: 65,537 bytes. At most 65,536 are taken.");
        EXPECT_EQ(clear()->toPlainText(), "older");
    }
}

using Base64LimitsTest = Base64PanelTest;

TEST_F(Base64LimitsTest, TheLongestTextIsEncodedAndDecodedBack)
{
    for (const QString& text : {ascii(largestEncoded), chinese(largestEncoded)}) {
        const QString encoded = converted(text, "E&ncode");
        EXPECT_EQ(status(), "Bytes encoded: 49,152.");
        EXPECT_EQ(encoded.size(), largestBase64);
        EXPECT_TRUE(converted(encoded, "Make &URL-safe") == encoded);
        EXPECT_TRUE(converted(encoded, "D&ecode") == text);
        EXPECT_EQ(status(), "Bytes decoded: 49,152.");
    }
}

TEST_F(Base64LimitsTest, OneByteMoreIsRefused)
{
    const struct
    {
        const char* how;
        int bytes;
        const char* report;
    } rows[] = {
        {"E&ncode", largestEncoded + 1,
         "The text is too long: 49,153 bytes. At most 49,152 are taken."},
        {"D&ecode", largestBase64 + 1,
         "The text is too long: 65,537 bytes. At most 65,536 are taken."},
        {"Make &URL-safe", largestBase64 + 1,
         "The text is too long: 65,537 bytes. At most 65,536 are taken."},
    };
    converted("abc", "E&ncode");
    for (const auto& row : rows) {
        for (const QString& text : {ascii(row.bytes), chinese(row.bytes)}) {
            EXPECT_EQ(converted(text, row.how).toStdString(), "YWJj") << row.how;
            EXPECT_EQ(status(), row.report) << row.how;
        }
    }
}

} // namespace

#include "tests/pages/crypto/CryptoPageTest.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr const char* key = "0123456789abcdef";

// As a foreign program encrypts: zero bytes are bytes like any other.
std::string encryptedElsewhere(const std::string& plain)
{
    const std::size_t padding = 16 - plain.size() % 16;
    const std::string padded = plain + std::string(padding, static_cast<char>(padding));
    std::string bytes(padded.size(), '\0');
    AesEncrypt cipher;
    cipher.MakeKey(key, key, 16, 16);
    cipher.Encrypt(padded.data(), bytes.data(), padded.size(), AesEncrypt::CBC);
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(bytes.data()),
                                 static_cast<unsigned int>(bytes.size()));
}

class CipherRemarksTest : public CryptoPageTest
{
protected:
    bool isInformation() { return !page()->findChild<QLabel*>("statusIcon")->isVisible(); }
};

TEST_F(CipherRemarksTest, TellThatEncryptingLosesWhatStandsBehindAZeroByte)
{
    const struct
    {
        QString plain;
        const char* report;
        const char* readBack;
    } rows[] = {
        {QString("abc%1defghij").arg(QChar(0)),
         "Bytes encrypted: 11. The library encrypts everything from the first zero byte on (byte "
         "4) as zeros: it cannot be read back.",
         "abc"},
        {QString("%1abc").arg(QChar(0)),
         "Bytes encrypted: 4. The library encrypts everything from the first zero byte on (byte "
         "1) as zeros: it cannot be read back.",
         ""},
        {QStringLiteral("\u7801%1").arg(QChar(0)),
         "Bytes encrypted: 4. The library encrypts everything from the first zero byte on (byte "
         "4) as zeros: it cannot be read back.",
         "\u7801"},
        {"abcdefghij", "Bytes encrypted: 10.", "abcdefghij"},
    };
    enterKeys(key, key);
    for (const auto& row : rows) {
        clear()->setPlainText(row.plain);
        pressEncrypt();
        EXPECT_EQ(status(), row.report);
        EXPECT_EQ(isInformation(), row.plain == "abcdefghij") << row.report;
        const std::string text = cipher()->toPlainText().toStdString();
        EXPECT_EQ(Encrypt::DecryptionAES(key, key, text), row.readBack);
    }
}

TEST_F(CipherRemarksTest, TellThatTheLibraryEndsTheClearTextAtAZeroByte)
{
    const struct
    {
        std::string plain;
        const char* report;
        const char* shown;
    } rows[] = {
        {std::string("abc\0def", 7),
         "Bytes decrypted: 3. The library ends the text before its first zero byte. Bytes left "
         "out: 4.",
         "abc"},
        {std::string("\0abcdef", 7),
         "Bytes decrypted: 0. The library ends the text before its first zero byte. Bytes left "
         "out: 7.",
         ""},
        {std::string("0123456789abcdef\0", 17),
         "Bytes decrypted: 16. The library ends the text before its first zero byte. Bytes left "
         "out: 1.",
         "0123456789abcdef"},
        {"abcdef", "Bytes decrypted: 6.", "abcdef"},
        {"", "Bytes decrypted: 0.", ""},
    };
    enterKeys(key, key);
    for (const auto& row : rows) {
        cipher()->setPlainText(QString::fromStdString(encryptedElsewhere(row.plain)));
        pressDecrypt();
        EXPECT_EQ(status(), row.report);
        EXPECT_EQ(clear()->toPlainText(), row.shown);
        EXPECT_EQ(isInformation(), row.plain.find('\0') == std::string::npos) << row.report;
    }
}

// The exported entry has room for what comes before the zero byte.
TEST_F(CipherRemarksTest, CountOnlyWhatCanBeReadBackForTheExportedEntry)
{
    enterPassPhrase(passPhrase);
    clear()->setPlainText(QString(2047, 'x') + QChar(0) + "x");
    pressEncrypt();
    EXPECT_EQ(status().find("DecryptionAES_Export"), std::string::npos) << status();
}

TEST_F(CipherRemarksTest, TellThatASingleLastCharacterYieldsNothing)
{
    const std::string text(47, 'x'); // its Base64 has no padding
    enterKeys(key, key);
    for (const char* end : {"", "Q", "Q\n"}) {
        cipher()->setPlainText(QString::fromStdString(encryptedElsewhere(text)) + end);
        pressDecrypt();
        const std::string done = "Bytes decrypted: 47.";
        EXPECT_EQ(status(),
                  *end == 0 ? done
                            : done + " The last Base64 character stands alone and yields nothing.");
        EXPECT_EQ(isInformation(), *end == 0) << end;
        EXPECT_EQ(clear()->toPlainText().toStdString(), text);
    }
}

TEST_F(CipherRemarksTest, TellHowMuchOfALongKeyIsUsed)
{
    const std::string ofKey = " Only the first 16 bytes of the key are used.";
    const std::string ofIv = " Only the first 16 bytes of the IV are used.";
    const struct
    {
        const char* key;
        const char* iv;
        bool hexadecimal;
        std::string note;
    } rows[] = {
        {"0123456789abcdefXYZ", key, false, ofKey},
        {key, "0123456789abcdefX", false, ofIv},
        {"0123456789abcdefXYZ", "0123456789abcdefX", false, ofKey + ofIv},
        {"3031323334353637383961626364656600", "30313233343536373839616263646566", true, ofKey},
        {key, key, false, ""},
    };
    for (const auto& row : rows) {
        enterKeys(row.key, row.iv, row.hexadecimal);
        clear()->setPlainText("text");
        pressEncrypt();
        EXPECT_EQ(status(), "Bytes encrypted: 4." + row.note);
        EXPECT_EQ(isInformation(), row.note.empty());
        EXPECT_EQ(cipher()->toPlainText().toStdString(), Encrypt::EncryptionAES(key, key, "text"));
        pressDecrypt();
        EXPECT_EQ(status(), "Bytes decrypted: 4." + row.note);
        EXPECT_EQ(isInformation(), row.note.empty());
    }
}

TEST_F(CipherRemarksTest, CountTheBytesOfAKeyAndThoseThatAreUsed)
{
    const std::pair<const char*, const char*> rows[] = {
        {"0123456789abcde", "15 of 16 bytes"},
        {key, "16 of 16 bytes"},
        {"0123456789abcdefXYZ", "19 bytes: only the first 16 are used"},
    };
    for (const auto& [typed, count] : rows) {
        enterKeys(typed, "");
        QApplication::processEvents();
        const auto labels = page()->findChildren<QLabel*>();
        const auto label = std::find_if(labels.begin(), labels.end(), [text = count](QLabel* each) {
            return each->isVisible() && each->text() == text;
        });
        ASSERT_NE(label, labels.end()) << count;
        EXPECT_GE((*label)->width(), (*label)->sizeHint().width()) << count;
        EXPECT_GT(control<QLineEdit>("Key:")->width(), 200) << count;
    }
}

} // namespace

#include "tests/pages/crypto/CryptoPageTest.h"

#include "app/ApplicationLog.h"
#include "crypto/Base64Encoder.h"
#include "tests/support/WaitFor.h"

#include <QClipboard>
#include <QFile>
#include <QLabel>

#include <functional>

namespace {

TEST_F(CryptoPageTest, OpensWithThePassPhraseInFocus)
{
    EXPECT_EQ(QApplication::focusWidget(), control<QLineEdit>("Pass phrase:"));
}

TEST_F(CryptoPageTest, FindPutsTheKeyboardIntoTheFirstField)
{
    const auto found = [this] {
        page()->findChild<QTabWidget*>()->setFocus();
        QTest::keyClick(&m_window, Qt::Key_F, Qt::ControlModifier);
        return QApplication::focusWidget();
    };
    EXPECT_EQ(found(), control<QLineEdit>("Pass phrase:"));
    enterKeys("key", "iv");
    EXPECT_EQ(found(), control<QLineEdit>("Key:"));
    chooseTab(1);
    EXPECT_EQ(found(), control<QPlainTextEdit>("Text"));
    button<QRadioButton>("Of a fil&e")->setChecked(true);
    EXPECT_EQ(found(), control<QLineEdit>("Path of the file"));
    chooseTab(2);
    EXPECT_EQ(found(), control<QPlainTextEdit>("Text or Base64"));
}

TEST_F(CryptoPageTest, EncryptsUnderAPassPhraseAsTheExportedEntryExpects)
{
    enterPassPhrase(passPhrase);
    clear()->setPlainText(QStringLiteral("at the quay \u7801\u5934"));
    pressEncrypt();
    const std::string text = cipher()->toPlainText().toStdString();
    const std::unique_ptr<char[]> plain(DecryptionAES_Export(passPhrase, text.c_str()));
    EXPECT_STREQ(plain.get(), "at the quay \u7801\u5934");
}

TEST_F(CryptoPageTest, DecryptsUnderAPassPhrase)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "hello")));
    pressDecrypt();
    EXPECT_EQ(clear()->toPlainText(), "hello");
    EXPECT_EQ(status(), "Bytes decrypted: 5.");
}

TEST_F(CryptoPageTest, EncryptsAndDecryptsWithKeyAndIv)
{
    enterKeys("0123456789abcdef", "fedcba9876543210");
    clear()->setPlainText("text");
    pressEncrypt();
    EXPECT_EQ(cipher()->toPlainText().toStdString(),
              Encrypt::EncryptionAES("0123456789abcdef", "fedcba9876543210", "text"));
    clear()->clear();
    pressDecrypt();
    EXPECT_EQ(clear()->toPlainText(), "text");
}

// The field itself keeps no carriage return, and QPlainTextEdit gives no no-break space back.
TEST_F(CryptoPageTest, DecryptsCopiesAndEncryptsEveryCharacter)
{
    const QString plain = QStringLiteral("a\r\nb\u00a0");
    const QString text = QString::fromStdString(encrypted(passPhrase, plain.toStdString()));
    enterPassPhrase(passPhrase);
    cipher()->setPlainText(text);
    pressDecrypt();
    QTest::mouseClick(control<QPushButton>("Copy: Clear text"), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), plain);
    cipher()->clear();
    pressEncrypt();
    EXPECT_EQ(cipher()->toPlainText(), text);
}

TEST_F(CryptoPageTest, EncryptsWhatWasTypedIntoADecryptedText)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "a\r\nb")));
    pressDecrypt();
    QTest::keyClicks(clear(), QStringLiteral("x\u00a0"));
    pressEncrypt();
    EXPECT_EQ(cipher()->toPlainText().toStdString(), encrypted(passPhrase, "x\u00a0a\nb"));
}

// The library ends a clear text at its first zero byte.
TEST_F(CryptoPageTest, ShowsDecryptedBytesThatAreNoTextInHexadecimal)
{
    const std::pair<std::string, const char*> rows[] = {{std::string("\xff\0A", 3), "ff"},
                                                        {"\xff\xfe"
                                                         "A",
                                                         "ff fe 41"}};
    enterKeys("0123456789abcdef", "fedcba9876543210");
    for (const auto& [bytes, shown] : rows) {
        cipher()->setPlainText(QString::fromStdString(
            Encrypt::EncryptionAES("0123456789abcdef", "fedcba9876543210", bytes)));
        pressDecrypt();
        EXPECT_EQ(clear()->toPlainText(), shown);
        EXPECT_NE(status().find("They are no text; shown in hexadecimal."), std::string::npos)
            << status();
    }
}

TEST_F(CryptoPageTest, TakesKeyAndIvInHexadecimal)
{
    enterKeys("30313233343536373839616263646566", "66656463626139383736353433323130", true);
    clear()->setPlainText("text");
    pressEncrypt();
    EXPECT_EQ(cipher()->toPlainText().toStdString(),
              Encrypt::EncryptionAES("0123456789abcdef", "fedcba9876543210", "text"));
}

TEST_F(CryptoPageTest, SaysThatThePassPhraseIsWrong)
{
    const QString text = QString::fromStdString(encrypted(passPhrase, "a longer secret text"));
    for (const char* wrong : {"quay", "Quay side", "quay side ", "x", "\u7801\u5934", "1234"}) {
        enterPassPhrase(QString::fromUtf8(wrong));
        cipher()->setPlainText(text);
        pressDecrypt();
        EXPECT_EQ(status().rfind("Wrong pass phrase, or damaged cipher text:", 0), 0U)
            << wrong << ": " << status();
        EXPECT_NE(clear()->toPlainText(), "a longer secret text");
    }
}

TEST_F(CryptoPageTest, KeepsTheClearTextWhereWrongPaddingGivesAnEmptyOne)
{
    // 15 bytes of padding, the first of them spoilt: the last byte announces what is not there.
    const std::string key = "0123456789abcdef";
    std::string padded = "abc";
    padded += std::string(13, '\x0d');
    padded[4] = 'x';
    const std::string two = Encrypt::EncryptionAES(key, key, padded);
    const std::string block = Base64Encoder::Decode(two).substr(0, 16);
    enterKeys("0123456789abcdef", "0123456789abcdef");
    clear()->setPlainText("older");
    cipher()->setPlainText(QString::fromStdString(
        Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(block.data()), 16)));
    pressDecrypt();
    EXPECT_EQ(status(), "Wrong key or IV, or damaged cipher text: the padding does not match, and "
                        "the library gets an empty text.");
    EXPECT_EQ(clear()->toPlainText(), "older");
}

// The function writes of padding that does not match to standard output, which shows that the page
// has called it, and once only.
TEST_F(CryptoPageTest, AsksTheFunctionThatAHostLibraryCalls)
{
    const std::function<void()> enterings[] = {
        [this] { enterPassPhrase(passPhrase); },
        [this] { enterKeys("0123456789abcdef", "0123456789abcdef"); }};
    for (const auto& enter : enterings) {
        enter();
        cipher()->setPlainText("QUIC"); // bytes that end with 2, before which stands no 2
        testing::internal::CaptureStdout();
        pressDecrypt();
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "去填充失败！解密出错！！\n");
    }
}

TEST_F(CryptoPageTest, TellsAnEmptyClearTextFromAWrongPassPhrase)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "")));
    pressDecrypt();
    EXPECT_EQ(status(), "Bytes decrypted: 0.");
}

TEST_F(CryptoPageTest, SaysThatTheCipherIsNotWholeBlocks)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText("QUJD");
    pressDecrypt();
    EXPECT_EQ(status(), "Damaged cipher text: 3 bytes are not whole blocks of 16. The library gets "
                        "them undecrypted.");
    EXPECT_EQ(clear()->toPlainText(), "ABC");
}

TEST_F(CryptoPageTest, KeepsATypedTextWhereAFailureGivesBytes)
{
    enterPassPhrase(passPhrase);
    QTest::keyClicks(clear(), "typed");
    cipher()->setPlainText("QUJD");
    pressDecrypt();
    EXPECT_EQ(clear()->toPlainText(), "typed");
    EXPECT_EQ(status(), "Damaged cipher text: 3 bytes are not whole blocks of 16. The library gets "
                        "them undecrypted. They are not shown: the clear text is kept.");
}

TEST_F(CryptoPageTest, KeepsADecryptedTextWhenTheNextPassPhraseIsWrong)
{
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "hello")));
    enterPassPhrase(passPhrase);
    pressDecrypt();
    enterPassPhrase("wrong");
    pressDecrypt();
    EXPECT_EQ(clear()->toPlainText(), "hello");
}

TEST_F(CryptoPageTest, PutsTheNextFailureInThePlaceOfTheLastOne)
{
    enterPassPhrase(passPhrase);
    for (const auto& [text, shown] : {std::pair("QUJD", "ABC"), std::pair("REVG", "DEF")}) {
        cipher()->setPlainText(text);
        pressDecrypt();
        EXPECT_EQ(clear()->toPlainText(), shown);
    }
}

TEST_F(CryptoPageTest, UndoBringsBackTheClearTextThatDecryptingReplaced)
{
    enterPassPhrase(passPhrase);
    QTest::keyClicks(clear(), "typed");
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "hello\nworld")));
    pressDecrypt();
    ASSERT_EQ(clear()->toPlainText(), "hello\nworld");
    clear()->setFocus();
    QTest::keyClick(clear(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(clear()->toPlainText(), "typed");
}

TEST_F(CryptoPageTest, UndoBringsBackTheCipherTextThatEncryptingReplaced)
{
    enterPassPhrase(passPhrase);
    clear()->setPlainText("text");
    QTest::keyClicks(cipher(), "typed");
    pressEncrypt();
    ASSERT_NE(cipher()->toPlainText(), "typed");
    cipher()->setFocus();
    QTest::keyClick(cipher(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(cipher()->toPlainText(), "typed");
}

TEST_F(CryptoPageTest, ShowsSecretsForAsLongAsTheUserWants)
{
    const std::function<QList<QLineEdit*>()> fields[] = {
        [this] { return QList<QLineEdit*>{control<QLineEdit>("Pass phrase:")}; },
        [this] {
            enterKeys("0123456789abcdef", "fedcba9876543210");
            return QList<QLineEdit*>{control<QLineEdit>("Key:"), control<QLineEdit>("IV:")};
        }};
    for (const auto& visible : fields) {
        for (QLineEdit* field : visible()) {
            auto* reveal = button<QCheckBox>("Show what is typ&ed");
            reveal->setChecked(true);
            EXPECT_EQ(field->echoMode(), QLineEdit::Normal);
            reveal->setChecked(false);
            EXPECT_EQ(field->echoMode(), QLineEdit::Password);
        }
    }
}

TEST_F(CryptoPageTest, SaysNothingOfOneTabInAnother)
{
    pressEncrypt();
    ASSERT_EQ(status(), "Enter the pass phrase first.");
    chooseTab(1);
    EXPECT_EQ(status(), "");
}

TEST_F(CryptoPageTest, SaysOfASingleByteThatItIsNoWholeBlock)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText("QQ==");
    pressDecrypt();
    EXPECT_EQ(status(), "Damaged cipher text: one byte is no whole block of 16. The library gets "
                        "it undecrypted.");
}

TEST_F(CryptoPageTest, SaysWhatOfTheCipherTextIsIgnored)
{
    enterPassPhrase(passPhrase);
    cipher()->setPlainText(QString::fromStdString(encrypted(passPhrase, "hello")) + " more");
    pressDecrypt();
    EXPECT_EQ(status(), "Bytes decrypted: 5. Only the first 22 characters are URL-safe Base64; the "
                        "library ignores what follows.");
    EXPECT_EQ(clear()->toPlainText(), "hello");
}

TEST_F(CryptoPageTest, SaysThatTheExportedEntryCannotHoldALongText)
{
    const QString text(2048, 'x');
    enterPassPhrase(passPhrase);
    clear()->setPlainText(text);
    pressEncrypt();
    EXPECT_NE(status().find("cannot give this text back"), std::string::npos) << status();
    clear()->clear();
    pressDecrypt();
    EXPECT_EQ(clear()->toPlainText(), text);
    EXPECT_NE(status().find("DecryptionAES_Export gives null"), std::string::npos) << status();
}

TEST_F(CryptoPageTest, TakesTheLongestTextOfTheExportedEntryWithoutRemark)
{
    enterPassPhrase(passPhrase);
    clear()->setPlainText(QString(2047, 'x'));
    pressEncrypt();
    EXPECT_EQ(status(), "Bytes encrypted: 2,047.");
    pressDecrypt();
    EXPECT_EQ(status(), "Bytes decrypted: 2,047.");
}

TEST_F(CryptoPageTest, RefusesToWorkWithoutAPassPhrase)
{
    clear()->setPlainText("text");
    cipher()->setPlainText("older");
    pressEncrypt();
    pressDecrypt();
    EXPECT_EQ(status(), "Enter the pass phrase first.");
    EXPECT_EQ(clear()->toPlainText(), "text");
    EXPECT_EQ(cipher()->toPlainText(), "older");
}

struct BadKey
{
    const char* key;
    const char* iv;
    bool hexadecimal;
    const char* message;
};

TEST_F(CryptoPageTest, RefusesBadKeys)
{
    const BadKey rows[] = {
        {"", "0123456789abcdef", false, "The key is too short: the cipher takes 16 bytes."},
        {"0123456789abcde", "0123456789abcdef", false,
         "The key is too short: the cipher takes 16 bytes."},
        {"0123456789abcdef", "0123456789abcde", false,
         "The IV is too short: the cipher takes 16 bytes."},
        {"0123456789abcdef", "0123456789abcdef", true,
         "The key is too short: the cipher takes 16 bytes."},
        {"0123456789abcdef0123456789abcdeg", "0123456789abcdef", true,
         "The key is not hexadecimal: pairs of 0-9 and a-f are needed."},
        {"0123456789abcdef0123456789abcdef", "0123456789abcdef0123456789abcdef0", true,
         "The IV is not hexadecimal: pairs of 0-9 and a-f are needed."},
    };
    for (const BadKey& row : rows) {
        enterKeys(row.key, row.iv, row.hexadecimal);
        clear()->setPlainText("text");
        cipher()->setPlainText("older");
        pressEncrypt();
        EXPECT_EQ(status(), row.message);
        EXPECT_EQ(cipher()->toPlainText(), "older");
    }
}

TEST_F(CryptoPageTest, RefusesCipherTextsThatDecodeToNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "Enter the cipher text first."},
        {"+/8=", "This is no URL-safe Base64: the library decodes nothing of it."},
        {" QUJD", "This is no URL-safe Base64: the library decodes nothing of it."},
    };
    enterPassPhrase(passPhrase);
    for (const auto& [text, message] : rows) {
        clear()->setPlainText("older");
        cipher()->setPlainText(text);
        pressDecrypt();
        EXPECT_EQ(status(), message);
        EXPECT_EQ(clear()->toPlainText(), "older");
    }
}

TEST_F(CryptoPageTest, RefusesTextsThatWouldStallTheWindow)
{
    enterPassPhrase(passPhrase);
    clear()->setPlainText(QString(64 * 1024 + 1, 'x'));
    cipher()->setPlainText("older");
    pressEncrypt();
    EXPECT_NE(status().find("The text is too long"), std::string::npos);
    EXPECT_EQ(cipher()->toPlainText(), "older");
}

TEST_F(CryptoPageTest, MasksSecretsAndKeepsThemOutOfTheLog)
{
    enterPassPhrase("hush-hush");
    clear()->setPlainText("clear-secret");
    pressEncrypt();
    pressDecrypt();
    EXPECT_EQ(control<QLineEdit>("Pass phrase:")->echoMode(), QLineEdit::Password);
    enterKeys("0123456789abcdef", "fedcba9876543210");
    EXPECT_EQ(control<QLineEdit>("Key:")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(control<QLineEdit>("IV:")->echoMode(), QLineEdit::Password);
    pressEncrypt();
    QFile log(ApplicationLog::path());
    ASSERT_TRUE(log.open(QFile::ReadOnly));
    const QByteArray lines = log.readAll();
    EXPECT_TRUE(lines.contains("Bytes encrypted"));
    for (const char* secret : {"hush-hush", "clear-secret", "0123456789abcdef", "fedcba9876543210"})
        EXPECT_FALSE(lines.contains(secret)) << secret;
}

TEST_F(CryptoPageTest, CopiesAResult)
{
    enterPassPhrase(passPhrase);
    EXPECT_FALSE(control<QPushButton>("Copy: Base64 of the cipher text")->isEnabled());
    clear()->setPlainText("text");
    pressEncrypt();
    QTest::mouseClick(control<QPushButton>("Copy: Base64 of the cipher text"), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), cipher()->toPlainText());
    EXPECT_FALSE(QApplication::clipboard()->text().isEmpty());
}

TEST_F(Base64PanelTest, ConvertsBothWays)
{
    EXPECT_EQ(converted(QStringLiteral("\u00fb\u00ff"), "E&ncode"), "w7vDvw==");
    EXPECT_EQ(converted("w7vDvw==", "D&ecode"), QStringLiteral("\u00fb\u00ff"));
    EXPECT_EQ(status(), "Bytes decoded: 4.");
    EXPECT_EQ(converted("a+b/c==", "Make &URL-safe"), "a-b_c");
}

TEST_F(Base64PanelTest, AMnemonicDecodes)
{
    control<QPlainTextEdit>("Text or Base64")->setPlainText("QUJD");
    QTest::keyClick(&m_window, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(
        waitFor([this] { return control<QPlainTextEdit>("Result")->toPlainText() == "ABC"; }));
}

TEST_F(Base64PanelTest, SaysWhereDecodingStops)
{
    EXPECT_EQ(converted("QUJD QUJD", "D&ecode"), "ABC");
    EXPECT_EQ(status(), "Bytes decoded: 3. Only the first 4 characters are URL-safe Base64; the "
                        "library ignores what follows.");
}

TEST_F(Base64PanelTest, SaysThatASingleLastCharacterYieldsNothing)
{
    const std::string lone = "The last Base64 character stands alone and yields nothing.";
    const std::pair<const char*, std::string> rows[] = {
        {"QUJDQ", "Bytes decoded: 3. " + lone},
        {"QUJDQ=", "Bytes decoded: 3. " + lone},
        {"QUJDQ+", "Bytes decoded: 3. " + lone +
                       " Only the first 5 characters are URL-safe Base64; the library ignores "
                       "what follows."},
        {"QUJD", "Bytes decoded: 3."},
        {"QUJDQU", "Bytes decoded: 4."},
    };
    for (const auto& [text, report] : rows) {
        converted(text, "D&ecode");
        EXPECT_EQ(status(), report);
        const bool warns = page()->findChild<QLabel*>("statusIcon")->isVisible();
        EXPECT_EQ(warns, report.find(lone) != std::string::npos) << text;
    }
}

TEST_F(Base64PanelTest, ShowsWhatIsNoTextInHexadecimal)
{
    EXPECT_EQ(converted("-_8=", "D&ecode"), "fb ff");
    EXPECT_EQ(converted("AEE=", "D&ecode"), "00 41");
    EXPECT_EQ(status(), "Bytes decoded: 2. They are no text; shown in hexadecimal.");
}

TEST_F(Base64PanelTest, RefusesWhatCannotBeConverted)
{
    converted("abc", "E&ncode");
    EXPECT_EQ(converted("", "E&ncode"), "YWJj");
    EXPECT_EQ(status(), "Enter a text first.");
    EXPECT_EQ(converted("+/8=", "D&ecode"), "YWJj");
    EXPECT_EQ(status(), "This is no URL-safe Base64: the library decodes nothing of it.");
}

} // namespace

#pragma once

#include "tests/pages/PageFixture.h"

#include "crypto/CipherKeys.h"
#include "crypto/Encrypt.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>

inline constexpr const char* passPhrase = "quay side";

inline std::string encrypted(const std::string& phrase, const std::string& plain)
{
    const CipherKeys keys = keysFromPassPhrase(phrase);
    return Encrypt::EncryptionAES(keys.key, keys.iv, plain);
}

/// Drives the crypto page of the real window.
class CryptoPageTest : public PageFixture
{
protected:
    void SetUp() override { open("crypto"); }

    void chooseTab(int index) { page()->findChild<QTabWidget*>()->setCurrentIndex(index); }

    QPlainTextEdit* clear() { return control<QPlainTextEdit>("Clear text"); }
    QPlainTextEdit* cipher() { return control<QPlainTextEdit>("Base64 of the cipher text"); }
    void enterPassPhrase(const QString& phrase)
    {
        control<QLineEdit>("Pass phrase:")->setText(phrase);
    }

    void enterKeys(const QString& key, const QString& iv, bool hexadecimal = false)
    {
        button<QRadioButton>("&With key and IV")->setChecked(true);
        button<QCheckBox>("Written in hexadeci&mal")->setChecked(hexadecimal);
        control<QLineEdit>("Key:")->setText(key);
        control<QLineEdit>("IV:")->setText(iv);
    }

    void pressEncrypt() { press(QStringLiteral("E&ncrypt \u2192")); }
    void pressDecrypt() { press(QStringLiteral("\u2190 Decryp&t")); }
};

/// The same page with its Base64 tab in view.
class Base64PanelTest : public CryptoPageTest
{
protected:
    void SetUp() override
    {
        CryptoPageTest::SetUp();
        chooseTab(2);
    }

    QString converted(const QString& input, const QString& how)
    {
        control<QPlainTextEdit>("Text or Base64")->setPlainText(input);
        press(how);
        return control<QPlainTextEdit>("Result")->toPlainText();
    }
};

#pragma once

#include "inspection/crypto/DecryptionCheck.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QGridLayout;
class QLineEdit;
class QRadioButton;

/// Takes a pass phrase, or key and IV. What is typed is masked.
class KeyInput : public QWidget
{
    Q_OBJECT

public:
    explicit KeyInput(QWidget* parent = nullptr);

    bool usesPassPhrase() const;
    std::string passPhrase() const;

    /// Nothing when what was typed does not do; then `problem` says why, in words, and the field
    /// in question has the focus.
    std::optional<CipherKeys> keys(QString* problem);

    /// What of the key and the IV the cipher passes over, in words; empty when nothing.
    QString note() const;

private:
    QWidget* makePassPhrase();
    QWidget* makeKeys();
    /// A masked field with its caption in a row of the grid.
    QLineEdit* addSecret(const QString& caption, QGridLayout* grid);
    /// The same with a count of its bytes behind.
    QLineEdit* addKey(const QString& caption, QGridLayout* grid);
    QByteArray bytes(const QLineEdit* field) const;
    QString problemOf(const QLineEdit* field) const;
    QString countOf(const QLineEdit* field) const;

    QRadioButton* m_usePassPhrase;
    QRadioButton* m_useKeys;
    QLineEdit* m_passPhrase = nullptr;
    QLineEdit* m_key = nullptr;
    QLineEdit* m_iv = nullptr;
    QCheckBox* m_hexadecimal = nullptr;
};

#pragma once

#include "crypto/CipherKeys.h"
#include "inspection/crypto/EncryptionNote.h"
#include "inspection/crypto/TypedKey.h"

#include <QWidget>

#include <optional>
#include <vector>

class PageContext;
class QCheckBox;
class QGridLayout;
class QLineEdit;
class QRadioButton;

/// Takes a pass phrase, or key and IV. What is typed is masked until the user wants to see it.
class KeyInput : public QWidget
{
    Q_OBJECT

public:
    explicit KeyInput(PageContext& context, QWidget* parent = nullptr);

    KeySource source() const;

    /// What was typed, which is not to be reported.
    std::string passPhrase() const;

    /// Nothing when the keys are incomplete; then it has reported why, and the field in question
    /// has the focus.
    std::optional<CipherKeys> keys();

    /// What of the key and the IV the cipher does not use, in words; empty when nothing.
    QString note() const;

private:
    /// A box that shows what is typed into these fields.
    QWidget* makeReveal(const std::vector<QLineEdit*>& fields);
    QWidget* makePassPhrase();
    QWidget* makeKeys();
    /// A key with a count of its bytes behind.
    void addKey(const QString& caption, QLineEdit* field, QGridLayout* grid);
    /// What was typed into `m_key` or `m_iv`.
    TypedKey typed(const QLineEdit* field) const;
    /// Reports a problem of that field, gives it the focus, and returns no keys.
    std::optional<CipherKeys> refuse(QLineEdit* field, const QString& problem);

    PageContext& m_context;
    QRadioButton* m_useKeys;
    QLineEdit* m_passPhrase;
    QLineEdit* m_key;
    QLineEdit* m_iv;
    QCheckBox* m_hexadecimal;
};

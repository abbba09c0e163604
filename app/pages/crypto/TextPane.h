#pragma once

#include <QWidget>

class CopyButton;
class QPlainTextEdit;

/// A captioned field for a text of several lines, with a button that copies it.
class TextPane : public QWidget
{
    Q_OBJECT

public:
    enum class Access
    {
        Editable,
        ReadOnly
    };

    /// `caption` may have a mnemonic; `hint` stands in the field while it is empty.
    TextPane(const QString& caption, const QString& hint, Access access = Access::Editable,
             QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);
    QPlainTextEdit* edit() const { return m_edit; }

private:
    QPlainTextEdit* m_edit;
    CopyButton* m_copy;
};

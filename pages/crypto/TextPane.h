#pragma once

#include <QWidget>

class QPlainTextEdit;

/// A field for a text of several lines, which may be long; `hint` stands in it while it is empty.
QPlainTextEdit* makeTextEdit(const QString& accessibleName, const QString& hint);

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

    /// What was typed or pasted, or what was set for as long as the user leaves it alone.
    QString text() const;
    /// Replaces everything in one step, which undo takes back.
    void setText(const QString& text);
    QPlainTextEdit* edit() const { return m_edit; }

private:
    QPlainTextEdit* m_edit;
    QString m_set; ///< as given: the field itself keeps no carriage returns
    QString m_setAsShown;
};

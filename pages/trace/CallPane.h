#pragma once

#include <QWidget>

class CopyButton;
class QPlainTextEdit;
class QVBoxLayout;

/// All of one call, as a text that can be selected and copied.
class CallPane : public QWidget
{
    Q_OBJECT

public:
    explicit CallPane(QWidget* parent = nullptr);

    /// The empty text stands for no call.
    void setText(const QString& text);
    /// Adds a button to those beside the text.
    void addButton(QWidget* button);

private:
    QString m_text; ///< whole; the button asks for it at once
    QPlainTextEdit* m_edit;
    CopyButton* m_copy;
    QVBoxLayout* m_buttons;
};

#pragma once

#include <QPushButton>

#include <functional>

/// A button that copies a text to the clipboard; it works only while there is one.
class CopyButton : public QPushButton
{
    Q_OBJECT

public:
    /// `what` names the text for those who do not see its place, such as "the cipher text".
    CopyButton(const QString& what, std::function<QString()> text, QWidget* parent = nullptr);

    /// To be called whenever the text may have become empty or not.
    void refreshState();

private:
    std::function<QString()> m_text;
};

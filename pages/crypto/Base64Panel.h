#pragma once

#include "window/Page.h"

class TextPane;

/// Base64 both ways, as `Base64Encoder` does it.
class Base64Panel : public QWidget
{
    Q_OBJECT

public:
    explicit Base64Panel(QWidget* parent = nullptr);

signals:
    void reported(Page::Report kind, const QString& text);

private:
    QWidget* makeButtons();
    void addButton(const QString& caption, const QString& tip, void (Base64Panel::*slot)());
    void encode();
    void decode();
    void makeUrlSafe();
    /// The input; says why and returns false when there is none, or more bytes than `limit`.
    bool take(std::string* text, std::size_t limit);
    void showDecoded(const std::string& bytes, const QString& note);

    TextPane* m_input;
    TextPane* m_output;
    QLayout* m_buttons = nullptr;
};

#pragma once

#include <QWidget>

#include <optional>
#include <string>

class PageContext;
class QPushButton;
class TextPane;

/// Base64 both ways, as `Base64Encoder` does it.
class Base64Panel : public QWidget
{
    Q_OBJECT

public:
    explicit Base64Panel(PageContext& context, QWidget* parent = nullptr);

private:
    QPushButton* makeButton(const QString& caption, const QString& tip,
                            void (Base64Panel::*slot)());
    void encode();
    void decode();
    void makeUrlSafe();
    /// The input; says why and gives nothing when there is none, or more bytes than `limit`.
    std::optional<std::string> input(std::size_t limit);

    PageContext& m_context;
    TextPane* m_input;
    TextPane* m_output;
};

#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

#include <string>
#include <vector>

/// A style with the palette that it brings, or a dark one.
struct StyleName
{
    const char* key;
    bool dark;
};

/// The styles that the window is looked at in. Those of Adwaita bring their own palettes.
constexpr StyleName stylesInUse[] = {{"Fusion", false},  {"Fusion", true},
                                     {"Windows", false}, {"Windows", true},
                                     {"Adwaita", false}, {"Adwaita-Dark", false}};

/// While it lives, the application has that style.
class StyleInUse
{
public:
    explicit StyleInUse(const StyleName& name)
        : m_style(QApplication::style()->objectName()), m_palette(QApplication::palette())
    {
        QStyle* style = QStyleFactory::create(QLatin1String(name.key));
        m_isThere = style != nullptr;
        if (!style)
            return;
        QApplication::setStyle(style);
        QApplication::setPalette(name.dark ? dark() : style->standardPalette());
    }
    ~StyleInUse()
    {
        QApplication::setStyle(m_style);
        QApplication::setPalette(m_palette);
    }

    StyleInUse(const StyleInUse&) = delete;
    StyleInUse& operator=(const StyleInUse&) = delete;

    /// False where the style's plugin is not installed.
    bool isThere() const { return m_isThere; }

    /// A name for tests.
    static std::string nameOf(const StyleName& name)
    {
        const std::string key = name.key;
        return (key == "Adwaita-Dark" ? "AdwaitaDark" : key) + (name.dark ? "InDark" : "");
    }

private:
    static QPalette dark()
    {
        QPalette palette(QColor(58, 58, 62), QColor(45, 45, 48));
        palette.setColor(QPalette::Base, QColor(30, 30, 32));
        palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, QColor(230, 230, 230));
        palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
        palette.setColor(QPalette::HighlightedText, Qt::white);
        return palette;
    }

    QString m_style;
    QPalette m_palette;
    bool m_isThere = false;
};

#pragma once

#include <QApplication>
#include <QFont>

/// While it lives, the application has the size of font that the pages are laid out for; that of
/// the offscreen platform is larger.
class SmallFont
{
public:
    SmallFont() : m_former(QApplication::font())
    {
        QFont font = m_former;
        font.setPointSize(9);
        QApplication::setFont(font);
    }
    ~SmallFont() { QApplication::setFont(m_former); }

    SmallFont(const SmallFont&) = delete;
    SmallFont& operator=(const SmallFont&) = delete;

private:
    QFont m_former;
};

#include "inspection/fonts/FontPreview.h"

#include "inspection/fonts/CharacterSets.h"

#include <QFontDatabase>
#include <QGuiApplication>

FontPreview::FontPreview()
{
    const QStringList families = QFontDatabase().families();
    m_families = QSet<QString>(families.begin(), families.end());
}

bool FontPreview::isInstalled(const RegisteredFont& font) const
{
    return m_families.contains(font.face);
}

QString FontPreview::sample(const RegisteredFont& font) const
{
    return isInstalled(font) ? CharacterSets::sample(font.charSet)
                             : tr("(not installed on this system)");
}

QFont FontPreview::font(const RegisteredFont& font) const
{
    QFont shown = QGuiApplication::font();
    if (!isInstalled(font))
        return shown;
    shown.setFamily(font.face);
    shown.setStyleName(font.style);
    shown.setItalic(font.italic);
    return shown;
}

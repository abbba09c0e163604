#include "app/pages/profiles/WideProfileHold.h"

#include <QStringList>

// Opened as the wide calls open it: who takes a section apart first decides how it is decoded.
WideProfileHold::WideProfileHold(const QString& file) : m_settings(file, QSettings::IniFormat)
{
    m_settings.setIniCodec("utf-8");
}

void WideProfileHold::takeApart() const
{
    static_cast<void>(m_settings.childGroups()); // has to know all of them
}

#include "inspection/profiles/ParsedProfileCache.h"

#include <QStringList>

// Opened as the wide calls open it: who takes a section apart first decides how it is decoded.
ParsedProfileCache::ParsedProfileCache(const QString& file) : m_settings(file, QSettings::IniFormat)
{
    m_settings.setIniCodec("utf-8");
}

void ParsedProfileCache::takeApart() const
{
    static_cast<void>(m_settings.childGroups()); // has to know all of them
}

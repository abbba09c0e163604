#include "inspection/profiles/ParsedProfileCache.h"

#include <QStringList>

// Opened as the wide calls open it: whoever parses a section first decides how it is decoded.
ParsedProfileCache::ParsedProfileCache(const QString& file) : m_settings(file, QSettings::IniFormat)
{
    m_settings.setIniCodec("utf-8");
}

void ParsedProfileCache::parse() const
{
    static_cast<void>(m_settings.childGroups()); // which only all sections tell
}

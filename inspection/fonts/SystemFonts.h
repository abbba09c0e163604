#pragma once

#include "inspection/fonts/FontCatalogue.h"

#include <QFontDatabase>

/// Registers the families that the system has, family by family.
class SystemFonts
{
public:
    SystemFonts();

    /// Registers the next family, unless the service knows it; false when none is left.
    bool registerNext();

    int familiesLeft() const { return m_families.size(); }
    /// Families and records registered so far.
    int families() const { return m_registeredFamilies; }
    int records() const { return m_registeredRecords; }
    /// Families whose names are too long for a record.
    const QStringList& tooLong() const { return m_tooLong; }

private:
    void registerFamily(const QString& family);
    std::vector<BYTE> charSets(const QString& family) const;

    QFontDatabase m_database;
    QStringList m_families;
    QStringList m_tooLong;
    int m_registeredFamilies = 0;
    int m_registeredRecords = 0;
};

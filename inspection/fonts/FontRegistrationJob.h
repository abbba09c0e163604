#pragma once

#include "inspection/Job.h"
#include "inspection/fonts/FontCatalogue.h"

#include <QCoreApplication>
#include <QFontDatabase>

/// Registers the families that the system has with the font service, family by family.
class FontRegistrationJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(FontRegistrationJob)

public:
    FontRegistrationJob();

    /// Registers the next family, unless the service knows it.
    bool step() override;
    QString progress() const override;

    /// Families and records registered so far.
    int families() const { return m_registeredFamilies; }
    int records() const { return m_registeredRecords; }
    /// Families whose names are too long for a record: they are left out.
    const QStringList& tooLong() const { return m_tooLong; }

    /// In a sentence: what has been registered so far.
    QString summary() const;
    /// In a sentence: what has been left out, and why; empty where nothing was.
    QString omissions() const;

private:
    void registerFamily(const QString& family);
    std::vector<BYTE> charSets(const QString& family) const;

    QFontDatabase m_database;
    QStringList m_families; ///< that are left
    QStringList m_tooLong;
    int m_registeredFamilies = 0;
    int m_registeredRecords = 0;
};

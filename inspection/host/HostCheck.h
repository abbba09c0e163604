#pragma once

#include "inspection/host/HostReport.h"

/// Tells whether libraries can be loaded by the application here, and if not, why, from their files
/// alone: nothing of them is run.
class HostCheck
{
public:
    /// `program` is the path of the application, whose exported symbols and libraries count.
    explicit HostCheck(const QString& program,
                       const SearchPlaces& places = SearchPlaces::ofThisSystem());

    /// The file may be anything, also none at all.
    HostReport check(const QString& path);

private:
    void checkFile(const ElfObject& library, HostReport& report) const;
    void checkScope(const LoadScope& scope, HostReport& report) const;
    void checkNeeds(const LoadScope& scope, HostReport& report) const;
    void checkVersions(const LoadScope& scope, HostReport& report) const;
    void checkSymbols(const LoadScope& scope, HostReport& report) const;
    std::shared_ptr<const ElfObject> readableProgram(HostReport& report);

    QString m_program;
    SearchPlaces m_places;
    ElfObjects m_objects;
};

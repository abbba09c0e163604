#include "inspection/host/HostReport.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct HostWay
{
    Q_DECLARE_TR_FUNCTIONS(HostWay)
};

constexpr const char* severityNames[] = {"note", "warning", "error"};
constexpr const char* kindNames[] = {"file",    "machine",  "type",         "application",
                                     "library", "version",  "symbol",       "text-relocation",
                                     "stack",   "services", "host-function"};

} // namespace

QString HostFinding::severityName() const
{
    return QLatin1String(severityNames[static_cast<int>(severity)]);
}

QString HostFinding::kindName() const
{
    return QLatin1String(kindNames[static_cast<int>(kind)]);
}

QString HostNeed::wayText() const
{
    switch (by) {
    case FoundBy::Nothing: return HostWay::tr("not found");
    case FoundBy::Path: return HostWay::tr("by its path");
    case FoundBy::LoadedBefore: return HostWay::tr("loaded already");
    case FoundBy::Rpath: return HostWay::tr("by RPATH");
    case FoundBy::LibraryPath: return HostWay::tr("by LD_LIBRARY_PATH");
    case FoundBy::Runpath: return HostWay::tr("by RUNPATH");
    case FoundBy::Cache: return HostWay::tr("by the system's list");
    default: return HostWay::tr("in a folder of the system");
    }
}

bool HostReport::willLoad() const
{
    return std::none_of(findings.begin(), findings.end(), [](const HostFinding& finding) {
        return finding.severity == HostFinding::Severity::Error;
    });
}

#pragma once

#include "trace/bundle/Bundle.h"
#include "trace/reading/TraceFile.h"

#include <QCoreApplication>

#include <QStringList>

#include <functional>
#include <memory>

namespace replay {

class ReplayFolder;

/// What is replayed: a recording alone, or a bundle.
class ReplaySource
{
    Q_DECLARE_TR_FUNCTIONS(ReplaySource)

public:
    /// Called between two pieces of work of a few milliseconds; may throw, which ends the work.
    using Pause = std::function<void()>;

    explicit ReplaySource(const QString& path) : m_path(path), m_bundle(path) {}

    /// The paths of the recordings in a folder, those that are named *.trace, and of its
    /// bundles, *.qtrace or unpacked, by name.
    static QStringList findIn(const QString& folder);

    /// Reads all of the recording. False where that is not possible; `error` tells why.
    bool open(const Pause& pause = [] {});
    const QString& error() const { return m_error; }

    trace::TraceFile& file() const { return *m_file; }

    /// A folder that is as the bundle says it was at the start; for one replay.
    std::unique_ptr<ReplayFolder> makeFolder() const;

private:
    QString m_path;
    QString m_error;
    trace::Bundle m_bundle;
    std::unique_ptr<trace::TraceFile> m_file;
};

} // namespace replay

#pragma once

#include "tests/trace/reading/RecordingTest.h"
#include "trace/replay/ReplayFolder.h"
#include "trace/replay/ReplayProcess.h"

#include <QDir>

namespace replay {

/// A test that replays recordings, each in a process of its own.
class ReplayTest : public trace::RecordingTest
{
protected:
    using MakeServices = ReplayProcess::MakeServices;

    /// With the services of the application, or others, in a folder in which nothing is known.
    ReplayReport replay(const QByteArray& bytes, const MakeServices& services = {})
    {
        ReplayFolder folder({});
        return replay(*read(bytes), folder, services);
    }

    static ReplayReport replay(trace::TraceFile& file, ReplayFolder& folder,
                               const MakeServices& services = {})
    {
        ReplayProcess process(file, folder);
        if (services)
            process.setServices(services);
        EXPECT_TRUE(process.run()) << process.error().toStdString();
        return process.report();
    }

    /// The files that a recorded program finds, in a folder for its replay.
    static void layFiles(ReplayFolder& folder)
    {
        QDir(folder.directory()).mkpath(QStringLiteral("files/two"));
        QFile file(folder.directory() + QStringLiteral("/files/one.txt"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
        folder.setFolderKnown(QStringLiteral("./files"));
    }

    ReplayReport replayWithFiles(const QByteArray& recording)
    {
        ReplayFolder folder({});
        layFiles(folder);
        return replay(*read(recording), folder);
    }

    /// What differs, one a line, as "number part: was -> is".
    static std::string differences(const ReplayReport& report)
    {
        QString text;
        for (const auto& call : report.different) {
            for (const Difference& one : call.differences)
                text += QStringLiteral("%1 %2: %3 -> %4\n")
                            .arg(QString::number(call.number), one.part, one.was, one.is);
        }
        return text.left(4000).toStdString();
    }

    /// The calls that were not performed and why, as a number each: "number:reason".
    static QString skipped(const ReplayReport& report)
    {
        QStringList texts;
        for (const auto& call : report.skipped)
            texts += QStringLiteral("%1:%2").arg(call.number).arg(static_cast<int>(call.reason));
        return texts.join(' ');
    }
};

} // namespace replay

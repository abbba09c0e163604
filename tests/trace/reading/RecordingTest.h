#pragma once

#include "tests/support/MadeRecording.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/TraceFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace trace {

/// A test that reads recordings, in a folder of its own.
class RecordingTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// The recording with those bytes, read to its end.
    std::unique_ptr<TraceFile> read(const QByteArray& bytes, const char* name = "a.trace") const
    {
        write(name, bytes);
        auto file = std::make_unique<TraceFile>(path(name));
        EXPECT_TRUE(file->open()) << file->error().toStdString();
        readOn(*file);
        return file;
    }

    static void readOn(TraceFile& file)
    {
        while (file.readOn()) {
        }
    }

    static void walk(TraceFile& file, const std::function<void(const CallEntry&)>& receiver)
    {
        CallWalk walk(file, receiver);
        while (walk.step()) {
        }
    }

    /// The texts of all faults.
    static QStringList faults(const TraceFile& file)
    {
        QStringList texts;
        for (const TraceFault& fault : file.faults())
            texts += fault.text();
        return texts;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace trace

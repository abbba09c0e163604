#pragma once

#include "tests/trace/reading/RecordingTest.h"
#include "trace/reading/OpenRecording.h"
#include "trace/reading/RecordingJob.h"

namespace trace {

/// A recording that is open and may grow.
class OpenRecordingTest : public RecordingTest
{
protected:
    /// Writes those bytes and reads them as a recording.
    OpenRecording& take(const QByteArray& bytes)
    {
        write("a.trace", bytes);
        m_recording = std::make_unique<OpenRecording>(path("a.trace"));
        EXPECT_TRUE(m_recording->file().open()) << m_recording->file().error().toStdString();
        catchUp();
        return *m_recording;
    }

    /// Adds bytes to the file; returns the number of the first call that is new or has changed.
    qint64 append(const QByteArray& bytes)
    {
        QFile file(path("a.trace"));
        EXPECT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
        file.close();
        return catchUp();
    }

    qint64 catchUp()
    {
        RecordingJob job(*m_recording);
        while (job.step()) {
        }
        return job.changed();
    }

    Call call(qint64 number)
    {
        TraceFile& file = m_recording->file();
        const int index = file.indexOf(number);
        EXPECT_GE(index, 0);
        return file.call(file.calls()[static_cast<std::size_t>(index)]).value_or(Call());
    }
    const Operation* operation(qint64 number)
    {
        TraceFile& file = m_recording->file();
        return file.operation(file.calls()[file.placeFrom(number)]);
    }

    std::unique_ptr<OpenRecording> m_recording;
};

} // namespace trace

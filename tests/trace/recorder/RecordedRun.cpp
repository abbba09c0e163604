#include "tests/trace/recorder/RecordedRun.h"

#include "tests/support/ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QMap>

#include <gtest/gtest.h>

namespace {

constexpr int longestRun = 600000; // milliseconds

} // namespace

RecordedRun::RecordedRun() : m_environment(QProcessEnvironment::systemEnvironment())
{
    setEnvironment(QStringLiteral("XDG_DATA_HOME"), m_folder.filePath(QStringLiteral("data")));
    setEnvironment(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    setEnvironment(QStringLiteral("TMPDIR"), QStringLiteral("/tmp"));
    QDir(m_folder.path()).mkdir(QStringLiteral("files"));
    QFile file(m_folder.filePath(QStringLiteral("files/one.txt")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
    QDir(m_folder.path()).mkdir(QStringLiteral("files/two"));
}

void RecordedRun::setEnvironment(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

void RecordedRun::start(QStringList words)
{
    ChildProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder.path());
    const QString program = words.takeFirst();
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(longestRun));
    m_status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    m_out = process.readAllStandardOutput();
    m_error = process.readAllStandardError();
}

void RecordedRun::run(const QStringList& words)
{
    start(words);
}

void RecordedRun::record(const QStringList& words, const QStringList& options)
{
    start(QStringList{QStringLiteral(QUAYSIDE_CTL), "trace", "record", "-o", "recording"} +
          options + QStringList("--") + words);
}

QByteArray RecordedRun::read(const QString& name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QByteArray> RecordedRun::lines() const
{
    QList<QByteArray> lines = read(QStringLiteral("recording")).split('\n');
    EXPECT_EQ(lines.takeLast(), "") << "the last line is cut";
    return lines;
}

QList<QJsonObject> RecordedRun::calls() const
{
    QMap<int, QJsonObject> calls;
    for (const QByteArray& line : lines()) {
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(line, &error).object();
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
        if (object.contains(QLatin1String("n")))
            calls.insert(object.value(QLatin1String("n")).toInt(), object);
    }
    return calls.values();
}

QList<QJsonObject> RecordedRun::calls(const char* operation) const
{
    QList<QJsonObject> found;
    for (const QJsonObject& call : calls()) {
        if (call.value(QLatin1String("op")) == QLatin1String(operation) ||
            call.value(QLatin1String("callback")) == QLatin1String(operation))
            found += call;
    }
    return found;
}

bool RecordedRun::hasEnded() const
{
    return lines().last().startsWith("{\"ended\":");
}

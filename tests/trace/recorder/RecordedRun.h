#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

/// Runs programs in a folder of their own, with the recorder and without it.
class RecordedRun
{
public:
    RecordedRun();

    void setEnvironment(const QString& name, const QString& value);

    /// Runs a program as it is.
    void run(const QStringList& words);
    /// Runs it through `quaysidectl trace record` with these options.
    void record(const QStringList& words, const QStringList& options = {});

    QString folder() const { return m_folder.path(); }

    int status() const { return m_status; }
    QByteArray out() const { return m_out; }
    QByteArray error() const { return m_error; }

    /// All lines of the recording.
    QList<QByteArray> lines() const;
    /// The calls, each as its last line tells it, in the order of their numbers.
    QList<QJsonObject> calls() const;
    /// The calls of an operation.
    QList<QJsonObject> calls(const char* operation) const;
    bool hasEnded() const;

    QByteArray read(const QString& name) const;

private:
    void start(QStringList words);

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QByteArray m_out;
    QByteArray m_error;
    int m_status = -1;
};

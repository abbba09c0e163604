#pragma once

#include "fuzz/Expectation.h"

#include <QFile>
#include <QTemporaryDir>

/// A file that lives as long as one input. Each has a name of its own, as the settings cache goes
/// by names.
class ScratchFile
{
public:
    explicit ScratchFile(const QByteArray& content = {}) : m_path(nextPath())
    {
        QFile file(m_path);
        expectThat(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
                   "the scratch file can be written");
    }
    ~ScratchFile() { QFile::remove(m_path); }

    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const QString& path() const { return m_path; }

    QByteArray content() const
    {
        QFile file(m_path);
        expectThat(file.open(QIODevice::ReadOnly), "the scratch file can be read");
        return file.readAll();
    }

private:
    static QString nextPath()
    {
        static const QTemporaryDir folder;
        static quint64 number = 0;
        return folder.filePath(QString::number(++number));
    }

    QString m_path;
};

#pragma once

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A profile file in a folder of its own.
class ProfileFixture
{
public:
    QString path() const { return m_folder.filePath(QStringLiteral("profile.ini")); }
    QString folder() const { return m_folder.path(); }

    void write(const QByteArray& bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray bytes() const { return bytesOf(path()); }

    /// When it was written last.
    QDateTime stamp() const { return QFileInfo(path()).lastModified(); }
    void setStamp(const QDateTime& stamp) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(stamp, QFileDevice::FileModificationTime));
    }

    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

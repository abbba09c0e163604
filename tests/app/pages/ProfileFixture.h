#pragma once

#include <QFile>
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

    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A test that packs and unpacks, in a folder of its own.
class BundleTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void write(const char* name, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray read(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    /// Makes an empty folder and tells its path.
    QString folder(const char* name) const
    {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }

private:
    QTemporaryDir m_folder;
};

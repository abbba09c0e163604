#pragma once

#include "platform/PlatformProfileManagerImp.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

/// A profile manager and one profile of the test's own.
class ProfileManagerTest : public testing::Test
{
protected:
    ProfileManagerTest() = default;
    /// Puts the profile below another folder than that for temporary files.
    explicit ProfileManagerTest(const QString& parent) : folder(parent + "/quayside-XXXXXX") {}

    /// Makes the file anew. Where one is emptied and written again, some file systems flush it to
    /// disk, and the tests would take many times as long.
    void write(const QByteArray& content)
    {
        QFile file(path);
        file.remove();
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(content.size(), file.write(content));
    }

    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int writeNarrow(const char* section, const char* key, const char* value)
    {
        return manager.WritePrivateProfileStringA(section, key, value, narrow.constData());
    }

    std::string readNarrow(const char* section, const char* key)
    {
        char buffer[1024] = {};
        const unsigned int length = manager.GetPrivateProfileStringA(
            section, key, nullptr, buffer, sizeof buffer, narrow.constData());
        return std::string(buffer, length);
    }

    int writeWide(const wchar_t* section, const wchar_t* key, const wchar_t* value)
    {
        return manager.WritePrivateProfileStringW(section, key, value, wide.c_str());
    }

    std::wstring readWide(const wchar_t* section, const wchar_t* key,
                          const wchar_t* fallback = nullptr)
    {
        wchar_t buffer[1024] = {};
        const unsigned int length =
            manager.GetPrivateProfileStringW(section, key, fallback, buffer, 1024, wide.c_str());
        return std::wstring(buffer, length);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath("profile.ini");
    const QByteArray narrow = path.toUtf8();
    const std::wstring wide = path.toStdWString();
    PlatformProfileManagerImp manager;
};

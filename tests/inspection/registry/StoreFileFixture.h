#pragma once

#include "host/HostLibraries.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QFile>
#include <QSettings>

/// What another program does to the file of the stand-in's store.
namespace StoreFile {

inline QString path()
{
    return g_globalSettings->fileName();
}

/// Puts a new file in the place of the old one, as editors and other stores do.
inline void replace(const QByteArray& text)
{
    QFile file(path() + QStringLiteral(".new"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    QFile::remove(path());
    ASSERT_TRUE(file.rename(path()));
}

/// Adds text to the file that is there.
inline void append(const QByteArray& text)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(text);
}

inline void remove()
{
    ASSERT_TRUE(QFile::remove(path()));
}

inline QByteArray bytes()
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace StoreFile

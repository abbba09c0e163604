#include "inspection/profiles/ProfileBytes.h"

#include "platform/profiles/NarrowProfileFile.h"

#include <QFileInfo>

std::optional<QByteArray> ProfileBytes::of(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would be waited for
        return std::nullopt;
    return file.readAll();
}

bool ProfileBytes::restore(const QString& path, const std::optional<QByteArray>& bytes)
{
    if (!bytes)
        return !QFile::exists(path) || QFile::remove(path);
    {
        NarrowProfileFile file(path);
        if (!file.open(QIODevice::ReadWrite))
            return false;
        file.rewrite(*bytes);
    }
    return of(path) == bytes;
}

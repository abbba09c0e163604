#include "platform/files/KnownFile.h"

#include <QFile>
#include <QHashFunctions>

namespace {

unsigned digestOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray bytes = file.readAll();
    return qHashBits(bytes.constData(), static_cast<std::size_t>(bytes.size()), 1);
}

} // namespace

KnownFile KnownFile::of(const QString& path)
{
    KnownFile file;
    file.m_stamp = FileStamp::of(path);
    if (!file.m_stamp.isSure())
        file.m_digest = digestOf(path);
    return file;
}

// A stamp that has become sure and is the same leaves one thing open: a change in the step of the
// clock in which the first stamp was taken.
bool KnownFile::isStill(const QString& path)
{
    const FileStamp now = FileStamp::of(path);
    if (now != m_stamp)
        return false;
    if (m_stamp.isSure() || !now.isSure())
        return true;
    if (digestOf(path) != m_digest)
        return false;
    m_stamp = now;
    return true;
}

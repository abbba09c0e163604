#include "inspection/host/LoaderCache.h"

#include <QFile>

#include <cstring>

namespace {

// The list as it stands in the file, in the byte order of the machine.
struct Header
{
    char mark[20]; // with the version
    quint32 count;
    quint32 textSize;
    quint32 unused[5];
};

struct Entry
{
    quint32 flags;
    quint32 name; // where it begins, from the header on
    quint32 path;
    quint32 system;
    quint64 features; // of the processor, which the library is made for
};

constexpr char listMark[] = "glibc-ld.so.cache1.1";
// Before glibc 2.32 the list stands behind one of an older form, which is skipped.
constexpr char oldMark[] = "ld.so-1.7.0";
constexpr int oldHeader = 16; // bytes: the mark and the count
constexpr int oldEntry = 12;  // bytes
constexpr int alignment = 8;  // bytes, of the list behind the older one

#if defined(__aarch64__)
constexpr quint32 flagsHere = 0x0a03;
#else
constexpr quint32 flagsHere = 0x0303;
#endif

template <typename Record>
bool readRecord(const QByteArray& bytes, quint64 offset, Record& record)
{
    const auto size = static_cast<quint64>(bytes.size());
    if (offset > size || sizeof record > size - offset)
        return false;
    std::memcpy(&record, bytes.constData() + offset, sizeof record);
    return true;
}

QByteArray textAt(const QByteArray& bytes, quint32 offset)
{
    if (offset >= static_cast<quint32>(bytes.size()))
        return QByteArray();
    const int begin = static_cast<int>(offset);
    const int end = bytes.indexOf('\0', begin);
    return end < 0 ? QByteArray() : bytes.mid(begin, end - begin);
}

QByteArray withoutOldList(const QByteArray& bytes)
{
    quint32 count = 0;
    if (!bytes.startsWith(oldMark) || !readRecord(bytes, oldHeader - sizeof count, count))
        return bytes;
    const quint64 end = oldHeader + quint64{oldEntry} * count;
    const quint64 begin = (end + alignment - 1) / alignment * alignment;
    return begin < static_cast<quint64>(bytes.size()) ? bytes.mid(static_cast<int>(begin))
                                                      : QByteArray();
}

} // namespace

LoaderCache LoaderCache::read(const QString& path)
{
    LoaderCache cache;
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadOnly))
        cache.addEntries(withoutOldList(file.readAll()));
    return cache;
}

void LoaderCache::addEntries(const QByteArray& bytes)
{
    Header header = {};
    if (!bytes.startsWith(listMark) || !readRecord(bytes, 0, header))
        return;
    for (quint32 i = 0; i < header.count; ++i) {
        Entry entry = {};
        if (!readRecord(bytes, sizeof header + quint64{i} * sizeof entry, entry))
            return;
        // A library for some processors only has the same symbols as the one for all.
        if (entry.flags != flagsHere || entry.features != 0)
            continue;
        const QByteArray name = textAt(bytes, entry.name);
        if (!m_paths.contains(name))
            m_paths.insert(name, textAt(bytes, entry.path));
    }
}

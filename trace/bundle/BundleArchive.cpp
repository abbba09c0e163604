#include "trace/bundle/BundleArchive.h"

#include "trace/bundle/ArchiveEntryName.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace trace {

namespace {

constexpr int pieceSize = 256 * 1024; // bytes
constexpr QFileDevice::Permissions ownersOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

struct Closing
{
    void operator()(archive* open) const { archive_free(open); }
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};
using Archive = std::unique_ptr<archive, Closing>;
using Entry = std::unique_ptr<archive_entry, Closing>;

void rest(const BundleArchive::Pause& pause)
{
    if (pause)
        pause();
}

QString reasonOf(archive* open)
{
    return QString::fromLocal8Bit(archive_error_string(open));
}

// Writing ----------------------------------------------------------------------------------------

// Zip files have no place for a failed device's reason: that one is asked for it afterwards.
la_ssize_t writePiece(archive* /*open*/, void* device, const void* bytes, std::size_t size)
{
    return static_cast<QIODevice*>(device)->write(static_cast<const char*>(bytes),
                                                  static_cast<qint64>(size));
}

QStringList filesBelow(const QString& folder)
{
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names += QDir(folder).relativeFilePath(files.next());
    names.sort();
    return names;
}

Entry entryOf(const QString& name, const QFileInfo& file)
{
    constexpr unsigned int permissions = 0600;
    Entry entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), QFile::encodeName(name).constData());
    archive_entry_set_size(entry.get(), file.size());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), permissions);
    archive_entry_set_mtime(entry.get(), file.lastModified().toSecsSinceEpoch(), 0);
    return entry;
}

// A file that grows meanwhile is taken as long as it was.
bool writeContent(archive* open, QFile& file, qint64 size, const BundleArchive::Pause& pause)
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    while (size > 0) {
        const qint64 count = file.read(piece.data(), std::min<qint64>(size, piece.size()));
        if (count <= 0 ||
            archive_write_data(open, piece.constData(), static_cast<std::size_t>(count)) < count)
            return false;
        size -= count;
        rest(pause);
    }
    return true;
}

QString writeFile(archive* open, const QDir& folder, const QString& name,
                  const BundleArchive::Pause& pause)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const Entry entry = entryOf(name, QFileInfo(file));
    if (archive_write_header(open, entry.get()) != ARCHIVE_OK ||
        !writeContent(open, file, archive_entry_size(entry.get()), pause))
        return archive_errno(open) != 0 ? reasonOf(open) : file.errorString();
    return {};
}

QString writeAll(QIODevice& device, const QDir& folder, const BundleArchive::Pause& pause)
{
    const Archive open(archive_write_new());
    archive_write_set_bytes_in_last_block(open.get(), 1); // as it is, not filled up as for tapes
    if (archive_write_set_format_zip(open.get()) != ARCHIVE_OK ||
        archive_write_open(open.get(), &device, nullptr, writePiece, nullptr) != ARCHIVE_OK)
        return reasonOf(open.get());
    const QStringList names = filesBelow(folder.path());
    for (const QString& name : names) {
        QString fault = writeFile(open.get(), folder, name, pause);
        if (!fault.isEmpty())
            return fault;
    }
    return archive_write_close(open.get()) == ARCHIVE_OK ? QString() : reasonOf(open.get());
}

// Reading ----------------------------------------------------------------------------------------

/// Unpacks the entries of an archive one after another.
class Unpacking
{
    Q_DECLARE_TR_FUNCTIONS(BundleArchive)

public:
    Unpacking(archive* open, const QString& folder, qint64 limit, const BundleArchive::Pause& pause)
        : m_open(open), m_folder(folder), m_left(limit), m_pause(pause)
    {
    }

    // The reason why it cannot be unpacked; empty where all is.
    QString run();

private:
    QString take(archive_entry* entry);
    QString takeFile(const QString& name);
    QString copyInto(QFile& file);
    QString tooLarge() const;

    archive* m_open;
    QDir m_folder;
    qint64 m_left; // bytes
    int m_entries = 0;
    const BundleArchive::Pause& m_pause;
};

QString Unpacking::tooLarge() const
{
    return tr("it would become more than %L1 times as large; unpack it yourself and name the "
              "folder, "
              "if you know it")
        .arg(BundleArchive::mostGrowth);
}

QString Unpacking::run()
{
    archive_entry* entry = nullptr;
    for (;;) {
        const int state = archive_read_next_header(m_open, &entry);
        if (state == ARCHIVE_EOF)
            return {};
        if (state != ARCHIVE_OK && state != ARCHIVE_WARN)
            return reasonOf(m_open);
        if (++m_entries > BundleArchive::mostEntries)
            return tooLarge();
        QString fault = take(entry);
        if (!fault.isEmpty())
            return fault;
        rest(m_pause);
    }
}

// Folders are made for the files in them. No entry can be written through another one that is a
// link: there are none, and a name that is there already is not opened.
QString Unpacking::take(archive_entry* entry)
{
    const char* const bytes = archive_entry_pathname(entry);
    const QString name = bytes ? QFile::decodeName(bytes) : QString();
    const bool isFolder = archive_entry_filetype(entry) == AE_IFDIR;
    const bool isLink = archive_entry_hardlink(entry) || archive_entry_symlink(entry);
    if (isLink || (!isFolder && archive_entry_filetype(entry) != AE_IFREG))
        return tr("\"%1\" is no file").arg(name);
    const QString inner = isFolder && name.endsWith(QLatin1Char('/')) ? name.chopped(1) : name;
    if (!isSafeEntryName(inner))
        return tr("\"%1\" leads out of it").arg(name);
    return isFolder ? QString() : takeFile(name);
}

QString Unpacking::takeFile(const QString& name)
{
    m_folder.mkpath(QFileInfo(name).path());
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return QStringLiteral("%1: %2").arg(name, file.errorString());
    file.setPermissions(ownersOnly);
    return copyInto(file);
}

QString Unpacking::copyInto(QFile& file)
{
    std::vector<char> piece(pieceSize);
    for (;;) {
        const la_ssize_t count = archive_read_data(m_open, piece.data(), piece.size());
        if (count < 0)
            return reasonOf(m_open);
        if (count == 0)
            return file.flush() ? QString() : file.errorString();
        m_left -= count;
        if (m_left < 0)
            return tooLarge();
        if (file.write(piece.data(), count) != count)
            return file.errorString();
        rest(m_pause);
    }
}

} // namespace

bool BundleArchive::isArchive(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && file.read(4) == "PK\3\4";
}

bool BundleArchive::fail(const QString& reason)
{
    m_error = reason;
    return false;
}

bool BundleArchive::pack(const QString& folder, const Pause& pause)
{
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(tr("%1 cannot be written: %2.").arg(m_path, file.errorString()));
    file.setPermissions(ownersOnly);
    const QString fault = writeAll(file, QDir(folder), pause);
    if (file.error() != QFileDevice::NoError || (fault.isEmpty() && !file.commit()))
        return fail(tr("%1 cannot be written: %2.").arg(m_path, file.errorString()));
    return fault.isEmpty() || fail(tr("%1 cannot be written: %2.").arg(m_path, fault));
}

bool BundleArchive::unpack(const QString& folder, const Pause& pause)
{
    const Archive open(archive_read_new());
    archive_read_support_format_zip(open.get());
    const QByteArray name = QFile::encodeName(m_path);
    QString fault;
    if (archive_read_open_filename(open.get(), name.constData(), pieceSize) != ARCHIVE_OK) {
        fault = reasonOf(open.get());
    } else {
        const qint64 limit = std::max(usualSize, mostGrowth * QFileInfo(m_path).size());
        fault = Unpacking(open.get(), folder, limit, pause).run();
    }
    return fault.isEmpty() || fail(tr("%1 cannot be unpacked: %2.").arg(m_path, fault));
}

} // namespace trace

#include "trace/replay/BundleLayout.h"

#include "trace/bundle/DirectoryListing.h"
#include "trace/replay/ReplayFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace replay {

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// As far as it is compared: size, when it was changed, and whether it can be written.
void layFile(const QString& path, const trace::DirectoryListing::Entry& entry)
{
    QFile file(path);
    if (file.exists() || !file.open(QIODevice::WriteOnly))
        return;
    file.resize(entry.size);
    file.setFileTime(QDateTime::fromSecsSinceEpoch(entry.modified), QFile::FileModificationTime);
    file.close();
    if (entry.isReadOnly)
        file.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
}

} // namespace

void BundleLayout::lay(ReplayFolder& replay) const
{
    const trace::BundleIndex& index = *m_bundle.index();
    if (index.store && !index.store->isAbsent())
        QFile::copy(m_bundle.pathOf(index.store->file), replay.storePath());
    for (const File& profile : index.profiles)
        layProfile(profile, replay);
    for (const File& folder : index.directories)
        layFolder(folder, replay);
}

void BundleLayout::layProfile(const File& profile, ReplayFolder& replay) const
{
    replay.setKnown(profile.path);
    if (profile.isAbsent())
        return;
    replay.makeFolderOf(profile.path);
    QFile file(replay.toReplay(profile.path));
    if (file.open(QIODevice::WriteOnly))
        file.write(bytesOf(m_bundle.pathOf(profile.file)));
}

void BundleLayout::layFolder(const File& folder, ReplayFolder& replay) const
{
    replay.setFolderKnown(folder.path);
    if (folder.isAbsent())
        return;
    const QDir directory(replay.toReplay(folder.path));
    directory.mkpath(QStringLiteral("."));
    const auto listing = trace::DirectoryListing::read(bytesOf(m_bundle.pathOf(folder.file)));
    if (!listing)
        return;
    for (const trace::DirectoryListing::Entry& entry : listing->entries) {
        if (entry.isDirectory)
            directory.mkpath(entry.name);
        else
            layFile(directory.filePath(entry.name), entry);
    }
}

} // namespace replay

#include "ctl/Store.h"

#include "app/StartUp.h"
#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreSaving.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

Store::Store(const QString& file, bool mustExist)
{
    if (file.isEmpty())
        StartUp::handOver(QString());
    else
        m_replacement.emplace(QFileInfo(file).absoluteFilePath());
    check(mustExist, !file.isEmpty());
}

void Store::check(bool mustExist, bool isFile)
{
    if (!RawStore::exists())
        throw Failure(tr("The host library has set up no store."));
    if (isFile && mustExist && !QFileInfo::exists(RawStore::fileName()))
        throw Failure(tr("%1: there is no such file.").arg(RawStore::fileName()));
    // Saving would make the folder, which is as likely a slip in its name.
    if (isFile && !QFileInfo(RawStore::fileName()).dir().exists())
        throw Failure(tr("%1: there is no such folder.").arg(RawStore::fileName()));
    if (RawStore::isInaccessible())
        throw Failure(tr("The store %1 cannot be read.").arg(RawStore::fileName()));
}

// QSettings parses the sections of a file when they are asked for; listing parses them all.
QString Store::damage()
{
    static_cast<void>(RawStore({}, RawStore::Reach::OwnFile).allEntries());
    return RawStore::hasMetDamage()
               ? tr("The store %1 has lines that are no entries.").arg(RawStore::fileName())
               : QString();
}

void Store::reread()
{
    if (!RawStore::save())
        throw Failure(tr("The store %1 cannot be read.").arg(RawStore::fileName()));
}

// By the folder, because neither of the files may be there yet; the file itself may be a link.
void Store::refuseOwnFile(const QString& file)
{
    const auto placeOf = [](const QFileInfo& info) {
        return info.exists() ? info.canonicalFilePath()
                             : QDir(info.dir().canonicalPath()).filePath(info.fileName());
    };
    if (placeOf(QFileInfo(file)) == placeOf(QFileInfo(RawStore::fileName())))
        throw Failure(ExitStatus::WrongUsage, tr("%1 is the store's own file.").arg(file));
}

// QSettings waits for the same lock, but no signal ends its wait. Where there can be no lock at
// all, saving tells so.
void Store::waitForLock()
{
    constexpr int turn = 100; // milliseconds
    QLockFile lock(RawStore::fileName() + QLatin1String(".lock"));
    while (!lock.tryLock(turn) && lock.error() == QLockFile::LockFailedError)
        Interruption::check();
}

void Store::save()
{
    waitForLock();
    if (!saveStore())
        throw Failure(tr("The store %1 could not be saved.").arg(RawStore::fileName()));
}

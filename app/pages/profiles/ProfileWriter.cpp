#include "app/pages/profiles/ProfileWriter.h"

#include "app/pages/profiles/ProfileReader.h"
#include "platform/PlatformServicesImp.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

bool callService(const QString& file, const ProfileChange& change)
{
    IPlatformProfileManager& profiles = *g_PlatformServices.profileManager();
    if (change.family == ProfileFamily::Narrow)
        return profiles.WritePrivateProfileStringA(
                   change.section.toUtf8().constData(), change.key.toUtf8().constData(),
                   change.value.toUtf8().constData(), file.toUtf8().constData()) != 0;
    return profiles.WritePrivateProfileStringW(
               change.section.toStdWString().c_str(), change.key.toStdWString().c_str(),
               change.value.toStdWString().c_str(), file.toStdWString().c_str()) != 0;
}

bool reads(const QString& file, const ProfileChange& change)
{
    const ProfileReader reader(file);
    if (change.family == ProfileFamily::Narrow)
        return reader.narrow(change.section, change.key) == change.value;
    return reader.wide(change.section, change.key) == change.value;
}

// What lies on disk, which need not be what the wide family remembers to have written.
bool readsCopy(const QString& file, const QString& copy, const ProfileChange& change)
{
    return QFile::copy(file, copy) && reads(copy, change);
}

// The wide family writes a new file beside the one that there is, and puts it in its place.
bool isWritable(const QFileInfo& file, ProfileFamily family)
{
    const QFileInfo folder(file.path());
    const bool needsFolder = family == ProfileFamily::Wide || !file.exists();
    return folder.isDir() && (folder.isWritable() || !needsFolder) &&
           (!file.exists() || (file.isFile() && file.isWritable()));
}

} // namespace

ProfileWriter::ProfileWriter(const QString& file) : m_file(file) {}

QString ProfileWriter::fault(const ProfileChange& change) const
{
    if (change.key.isEmpty())
        return tr("Type a key first.");
    // Without a name stands what the wide family finds under [General] or before the first header.
    if (change.section.isEmpty() && change.family == ProfileFamily::Narrow)
        return tr("Type a section first.");
    if (!isWritable(QFileInfo(m_file), change.family))
        return tr("%1 cannot be written.").arg(m_file);
    if (readsBack(change))
        return {};
    return change.family == ProfileFamily::Narrow
               ? tr("Nothing written: the narrow family would not read this back. A line with more "
                    "than one “=” is dropped, and spaces at the ends of names and values are lost.")
               : tr("Nothing written: the wide family would not read this back under that name.");
}

// Tried on a copy.
bool ProfileWriter::readsBack(const ProfileChange& change) const
{
    const QTemporaryDir folder;
    const QString written = folder.filePath(QStringLiteral("written.ini"));
    const QString read = folder.filePath(QStringLiteral("read.ini"));
    if (QFile::exists(m_file) && !QFile::copy(m_file, written))
        return false;
    QFile::setPermissions(written, QFile::ReadOwner | QFile::WriteOwner);
    return callService(written, change) && readsCopy(written, read, change);
}

QString ProfileWriter::backUp() const
{
    QString copy = m_file + QStringLiteral(".bak");
    for (int number = 2; QFile::exists(copy); ++number)
        copy = m_file + QStringLiteral(".bak%1").arg(number);
    return QFile::copy(m_file, copy) ? copy : QString();
}

bool ProfileWriter::write(const ProfileChange& change) const
{
    const QTemporaryDir folder;
    return callService(m_file, change) &&
           readsCopy(m_file, folder.filePath(QStringLiteral("read.ini")), change);
}

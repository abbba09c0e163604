#include "inspection/profiles/ProfileWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace {

// The wide family writes a new file beside the one that there is, and puts it in its place. Either
// family takes a file that it cannot read for an empty one, and what lies in it is lost.
bool isWritable(const QFileInfo& file, ProfileFamily family)
{
    const QFileInfo folder(file.path());
    const bool needsFolder = family == ProfileFamily::Wide || !file.exists();
    return folder.isDir() && (folder.isWritable() || !needsFolder) &&
           (!file.exists() || (file.isFile() && file.isReadable() && file.isWritable()));
}

} // namespace

ProfileWriter::ProfileWriter(const QString& file) : m_file(file) {}

QString ProfileWriter::fault(const ProfileChange& change) const
{
    const bool needsKey = change.action != ProfileChange::Action::DeleteSection;
    if (change.key.isEmpty() && needsKey)
        return tr("Type a key first.");
    // Without a name stands what the wide family finds under [General] or before the first header.
    if (change.section.isEmpty() && change.family == ProfileFamily::Narrow)
        return tr("Type a section first.");
    if (change.action != ProfileChange::Action::Set && !QFileInfo::exists(m_file))
        return tr("There is no such file: nothing can be deleted from it.");
    if (!isWritable(QFileInfo(m_file), change.family))
        return tr("%1 cannot be written.").arg(m_file);
    if (QFileInfo(m_file).size() > ProfileDocument::largestWhole)
        return tr("%1 is larger than %2 MiB: no change can be tried on a copy of it.")
            .arg(m_file, QLocale().toString(ProfileDocument::largestWhole / 1024 / 1024));
    return {};
}

QString ProfileWriter::unreadable(const ProfileChange& change)
{
    const bool isWide = change.family == ProfileFamily::Wide;
    if (change.action != ProfileChange::Action::Set && isWide &&
        change.section.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
        return tr("Nothing deleted: the wide family does not find that. What stands under "
                  "[General] is in no section for it: leave the section empty.");
    if (change.action != ProfileChange::Action::Set)
        return change.family == ProfileFamily::Narrow
                   ? tr("Nothing deleted: the narrow family does not find that.")
                   : tr("Nothing deleted: the wide family does not find that.");
    return change.family == ProfileFamily::Narrow
               ? tr("Nothing written: the narrow family would not read this back. A line with more "
                    "than one “=” is dropped, and spaces at the ends of names and values are lost.")
               : tr("Nothing written: the wide family would not read this back under that name.");
}

QString ProfileWriter::backUp() const
{
    QString copy = m_file + QStringLiteral(".bak");
    for (int number = 2; QFile::exists(copy); ++number)
        copy = m_file + QStringLiteral(".bak%1").arg(number);
    return QFile::copy(m_file, copy) ? copy : QString();
}

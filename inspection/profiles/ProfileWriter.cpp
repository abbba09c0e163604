#include "inspection/profiles/ProfileWriter.h"

#include <QFile>
#include <QFileInfo>

namespace {

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
    return {};
}

QString ProfileWriter::unreadable(ProfileFamily family)
{
    return family == ProfileFamily::Narrow
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

#include "ctl/profiles/ProfileMergeCommand.h"

#include "ctl/Failure.h"
#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEdit.h"
#include "ctl/profiles/ProfileEntries.h"

#include <cstdio>

namespace {

// As a file, because the service reads nothing else.
void saveInput(const QString& path)
{
    QFile input;
    QFile file(path);
    const bool isRead = input.open(stdin, QIODevice::ReadOnly);
    const QByteArray bytes = isRead ? input.readAll() : QByteArray();
    if (!isRead || input.error() != QFileDevice::NoError)
        throw Failure(ProfileMergeCommand::tr("The standard input cannot be read: %1")
                          .arg(input.errorString()));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(
            ProfileMergeCommand::tr("%1 cannot be written: %2").arg(path, file.errorString()));
}

} // namespace

void ProfileMergeCommand::addOptions(QCommandLineParser& parser) const
{
    ProfileEdit::addOptions(parser);
}

// What the family does not find in the other profile is not merged.
ExitStatus ProfileMergeCommand::run(const Arguments& arguments, Output& output)
{
    const ProfileFamily family = FamilyOption::needed(arguments);
    const QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("other.ini"));
    saveInput(other);
    const ProfileEntries entries(other);
    ProfileEdit edit(arguments.at(0));
    for (int i = 0; i < entries.count(); ++i) {
        const ProfileReading reading = entries.reading(i);
        if (family == ProfileFamily::Wide && reading.wide)
            edit.make(
                {family, reading.section, reading.key, *reading.wide, ProfileChange::Action::Set});
        else if (family == ProfileFamily::Narrow && entries.isNarrow(i))
            edit.make(
                {family, reading.section, reading.key, reading.narrow, ProfileChange::Action::Set});
    }
    return edit.end(arguments, output);
}

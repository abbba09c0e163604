#include "ctl/profiles/ProfileMergeCommand.h"

#include "ctl/ByteInput.h"
#include "ctl/Failure.h"
#include "ctl/InputDevice.h"
#include "ctl/JobRun.h"
#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEdit.h"
#include "ctl/profiles/ProfileEntries.h"
#include "inspection/profiles/ProfileCheckJob.h"

namespace {

// As a file, because the service reads nothing else.
void saveInput(const QByteArray& bytes, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(
            ProfileMergeCommand::tr("%1 cannot be written: %2").arg(path, file.errorString()));
}

QByteArray input()
{
    InputDevice device{QString()};
    return ByteInput::readAll(device);
}

// What the family loses of the input would be lost in the file.
void refuseLosses(const QByteArray& bytes, ProfileFamily family)
{
    ProfileCheckJob job(bytes);
    finish(job);
    for (const ProfileCheckJob::Finding& finding : job.findings()) {
        if (finding.family == family)
            throw Failure(ExitStatus::No,
                          ProfileMergeCommand::tr("Not merged: line %1 of the input. %2 --force "
                                                  "merges what the family reads.")
                              .arg(finding.line)
                              .arg(finding.reason));
    }
}

// What the family does not find in the other profile is not merged.
std::vector<ProfileEntry> entriesOf(const QString& file, ProfileFamily family)
{
    const ProfileEntries read(file);
    std::vector<ProfileEntry> entries;
    for (int i = 0; i < read.count(); ++i) {
        const ProfileDocument::Name name = read.name(i);
        const auto value = family == ProfileFamily::Wide ? read.wide(name) : read.narrow(name);
        if (value)
            entries.push_back({name.first, name.second, *value});
    }
    return entries;
}

} // namespace

void ProfileMergeCommand::addOptions(QCommandLineParser& parser) const
{
    ProfileEdit::addOptions(parser);
}

ExitStatus ProfileMergeCommand::run(const Arguments& arguments, Output& output)
{
    const ProfileFamily family = FamilyOption::needed(arguments);
    const QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("other.ini"));
    const QByteArray bytes = input();
    if (!arguments.has("force"))
        refuseLosses(bytes, family);
    saveInput(bytes, other);
    ProfileEdit edit(arguments.at(0));
    edit.make(ProfileBatch(family, entriesOf(other, family)));
    return edit.end(arguments, output);
}

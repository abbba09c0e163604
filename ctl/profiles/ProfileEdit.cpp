#include "ctl/profiles/ProfileEdit.h"

#include "ctl/Arguments.h"
#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/profiles/FamilyOption.h"
#include "inspection/profiles/DifferenceRows.h"
#include "inspection/profiles/FamilyLines.h"
#include "inspection/profiles/ProfileBytes.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileDryRun.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

using Action = ProfileChange::Action;

// Names that are missing are wrong usage; a file that cannot be written is not.
void checkFault(const QString& fault, const ProfileChange& change)
{
    const bool lacksName = change.section.isEmpty() ||
                           (change.key.isEmpty() && change.action != Action::DeleteSection);
    if (!fault.isEmpty())
        throw Failure(lacksName ? ExitStatus::WrongUsage : ExitStatus::Failed, fault);
}

} // namespace

void ProfileEdit::addOptions(QCommandLineParser& parser)
{
    FamilyOption::add(parser);
    parser.addOptions(
        {{QStringLiteral("dry-run"), tr("Prints the difference, and writes nothing.")},
         {QStringLiteral("force"), tr("Writes even where other lines change.")}});
}

ProfileEdit::ProfileEdit(const QString& file)
    : m_shown(file), m_file(QFileInfo(file).absoluteFilePath())
{
    const QString fault = ProfileDocument::fault(m_file);
    if (!fault.isEmpty())
        throw Failure(fault);
    m_former = ProfileBytes::of(m_file);
    QFile working(copy());
    if (m_former && (!working.open(QIODevice::WriteOnly) ||
                     working.write(*m_former) != m_former->size() || !working.flush()))
        throw Failure(tr("%1 cannot be written: %2").arg(copy(), working.errorString()));
}

void ProfileEdit::make(const ProfileChange& change)
{
    checkFault(ProfileWriter(m_file).fault(change), change);
    ProfileDryRun dry(copy(), change);
    finish(dry);
    if (!dry.isReadBack())
        throw Failure(change.action == Action::Set ? ExitStatus::Failed : ExitStatus::No,
                      ProfileWriter::unreadable(change));
    if (dry.isReadAlready())
        return;
    // What is deleted are lines and nothing else, those that were asked for.
    m_isAskedFor = m_isAskedFor && (change.action != Action::Set || dry.difference()->isAskedFor());
    if (!ProfileBytes::restore(copy(), dry.difference()->lines().after().bytes()))
        throw Failure(tr("%1 could not be written.").arg(copy()));
}

void ProfileEdit::make(ProfileBatch batch)
{
    const ProfileWriter writer(m_file);
    for (const ProfileEntry& entry : batch.entries())
        checkFault(writer.fault(batch.change(entry)), batch.change(entry));
    if (m_former)
        batch.leaveOutWhatIsRead(copy());
    if (batch.entries().empty())
        return;
    write(batch);
    const LineDifference difference(m_former.value_or(QByteArray()),
                                    ProfileDocument::bytesOf(copy()));
    m_isAskedFor = batch.isAllThatChanges(difference, FamilyLines(m_file, batch.family()),
                                          FamilyLines(copy(), batch.family()));
}

// What lies on disk need not be what the wide family remembers to have written: it is read under
// another name.
void ProfileEdit::write(const ProfileBatch& batch) const
{
    const QString again = m_folder.filePath(QStringLiteral("again.ini"));
    if (!batch.write(copy()) || !QFile::copy(copy(), again))
        throw Failure(tr("%1 could not be written.").arg(copy()));
    if (const ProfileEntry* unread = batch.firstUnread(again))
        throw Failure(ProfileWriter::unreadable(batch.change(*unread)));
}

ExitStatus ProfileEdit::end(const Arguments& arguments, Output& output) const
{
    const LineDifference difference(m_former.value_or(QByteArray()),
                                    ProfileDocument::bytesOf(copy()));
    const bool isRefused = !m_isAskedFor && !arguments.has("force");
    if (arguments.has("dry-run")) {
        const QByteArray name = m_shown.toUtf8();
        output.whole(unifiedDifference(difference, name, name), Columns::difference);
        return isRefused ? ExitStatus::No : ExitStatus::Done;
    }
    if (isRefused)
        throw Failure(ExitStatus::No,
                      tr("Not written: other lines of %1 would change, as --dry-run shows; --force "
                         "writes it.")
                          .arg(m_shown));
    if (!difference.hunks().empty())
        save(difference.after().bytes());
    return ExitStatus::Done;
}

void ProfileEdit::save(const QByteArray& bytes) const
{
    QSaveFile file(m_file);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw Failure(tr("%1 cannot be written: %2").arg(m_shown, file.errorString()));
}

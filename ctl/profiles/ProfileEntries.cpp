#include "ctl/profiles/ProfileEntries.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "inspection/profiles/ProfileLoadingJob.h"

#include <QFileInfo>

namespace {

struct ProfileEntriesTexts
{
    Q_DECLARE_TR_FUNCTIONS(ProfileEntries)
};

ProfileDocument loaded(const QString& file)
{
    ProfileLoadingJob job(existingProfile(file));
    finish(job);
    return std::move(job.document());
}

} // namespace

ProfileEntries::ProfileEntries(const QString& file)
    : m_document(loaded(file)), m_reader(m_document.path()), m_cache(m_document.path())
{
    const ProfileLines& lines = m_document.lines();
    for (int line = 0; line < lines.count(); ++line) {
        if (lines.narrowMark(line).state != LineState::Entry)
            continue;
        const LineReading reading = lines.narrow(line);
        m_narrow.emplace(reading.section, reading.key);
    }
}

ProfileReading ProfileEntries::reading(int index) const
{
    const auto [section, key] = name(index);
    return {section, key, m_reader.wide(section, key), m_reader.narrow(section, key)};
}

QString existingProfile(const QString& file)
{
    const QFileInfo info(file);
    const QString fault = ProfileDocument::fault(info.absoluteFilePath());
    if (!fault.isEmpty())
        throw Failure(fault);
    if (!info.exists())
        throw Failure(ProfileEntriesTexts::tr("%1: there is no such file.").arg(file));
    return info.absoluteFilePath();
}

#include "ctl/profiles/ProfileEntries.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "inspection/profiles/ProfileLoadingJob.h"
#include "platform/profiles/NarrowScanner.h"

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

// Of a line that is an entry; the answer ends at a zero byte.
QString narrowValue(const QString& line)
{
    NarrowScanner scanner(line, u"[]");
    scanner.next();
    const QStringView value = scanner.value();
    const qsizetype end = value.indexOf(QChar(0));
    return (end < 0 ? value : value.left(end)).toString();
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
        m_narrow.emplace(ProfileDocument::Name(reading.section, reading.key),
                         narrowValue(lines.text(line)));
    }
}

ProfileReading ProfileEntries::reading(int index) const
{
    const auto [section, key] = name(index);
    return {section, key, wide({section, key}), narrow({section, key}).value_or(QString())};
}

std::optional<QString> ProfileEntries::wide(const ProfileDocument::Name& name) const
{
    return m_reader.wide(name.first, name.second);
}

std::optional<QString> ProfileEntries::narrow(const ProfileDocument::Name& name) const
{
    const auto found = m_narrow.find(name);
    return found == m_narrow.end() ? std::nullopt : std::make_optional(found->second);
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

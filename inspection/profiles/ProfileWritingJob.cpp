#include "inspection/profiles/ProfileWritingJob.h"

#include "inspection/profiles/FamilyLines.h"
#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileLineRemoval.h"
#include "inspection/profiles/ProfileReader.h"
#include "platform/PlatformServicesImp.h"

#include <QFile>

#include <new>

namespace {

using Action = ProfileChange::Action;

bool make(const QString& file, const ProfileChange& change)
{
    IPlatformProfileManager& profiles = *g_PlatformServices.profileManager();
    if (change.action != Action::Set)
        return ProfileLineRemoval::apply(file, change);
    if (change.family == ProfileFamily::Narrow)
        return profiles.WritePrivateProfileStringA(
                   change.section.toUtf8().constData(), change.key.toUtf8().constData(),
                   change.value.toUtf8().constData(), file.toUtf8().constData()) != 0;
    return profiles.WritePrivateProfileStringW(
               change.section.toStdWString().c_str(), change.key.toStdWString().c_str(),
               change.value.toStdWString().c_str(), file.toStdWString().c_str()) != 0;
}

bool isDone(const QString& file, const ProfileChange& change)
{
    if (change.action == Action::DeleteSection)
        return !FamilyLines(file, change.family).hasSection(change.section);
    const ProfileReader reader(file);
    if (change.action == Action::DeleteKey)
        return change.family == ProfileFamily::Narrow
                   ? reader.narrow(change.section, change.key).isEmpty()
                   : !reader.wide(change.section, change.key);
    if (change.family == ProfileFamily::Narrow)
        return reader.narrow(change.section, change.key) == change.value;
    return reader.wide(change.section, change.key) == change.value;
}

} // namespace

ProfileWritingJob::ProfileWritingJob(const QString& file, const ProfileChange& change)
    : ProfileWritingJob(file, change, ProfileDocument(file).isLarge())
{
}

ProfileWritingJob::ProfileWritingJob(const QString& file, const ProfileChange& change, bool isLarge)
    : m_file(file), m_change(change), m_isLarge(isLarge)
{
}

ProfileWritingJob::ProfileWritingJob(const QString& file, const ProfileChange& change,
                                     const QByteArray& tried)
    : ProfileWritingJob(file, change)
{
    m_tried = tried;
}

ProfileWritingJob::~ProfileWritingJob() = default;

bool ProfileWritingJob::step()
{
    try {
        return !m_isTooLarge && stepStage();
    } catch (const std::bad_alloc&) {
        m_isTooLarge = true;
        return false;
    }
}

bool ProfileWritingJob::stepStage()
{
    switch (m_stage++) {
    case 0: return true; // the window says what is being done before anything takes long
    case 1: open(); return true;
    case 2: parse(); return true;
    case 3: readFormer(); return true;
    case 4: write(); return true;
    case 5: copy(); return true;
    case 6: read(); return true;
    default: return false;
    }
}

// The wide call has to parse the whole file before it writes. With the file parsed in a step of its
// own, the call takes half as long.
void ProfileWritingJob::open()
{
    if (isWide())
        m_cache = std::make_unique<ParsedProfileCache>(m_file);
}

void ProfileWritingJob::parse() const
{
    if (m_cache)
        m_cache->parse();
}

void ProfileWritingJob::readFormer()
{
    if (!m_tried.isNull() || !QFile::exists(m_file))
        return;
    if (m_change.action == Action::DeleteSection) {
        m_formerEntries = FormerEntries::of(m_file, m_change);
        return;
    }
    const ProfileReader reader(m_file);
    m_former = isWide() ? reader.wide(m_change.section, m_change.key).value_or(QString())
                        : reader.narrow(m_change.section, m_change.key);
    if (m_former.isNull())
        m_former = QLatin1String("");
}

void ProfileWritingJob::write()
{
    m_isWritten = make(m_file, m_change);
    m_cache.reset();
}

// What lies on disk need not be what the wide family remembers to have written.
void ProfileWritingJob::copy()
{
    m_isReadBack = m_isWritten && !m_tried.isNull() && ProfileDocument::bytesOf(m_file) == m_tried;
    m_isCopied = m_isWritten && !m_isReadBack && QFile::copy(m_file, copiedFile());
}

void ProfileWritingJob::read()
{
    m_isReadBack = m_isReadBack || (m_isCopied && isDone(copiedFile(), m_change));
}

QString ProfileWritingJob::copiedFile() const
{
    return m_folder.filePath(QStringLiteral("read.ini"));
}

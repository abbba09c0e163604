#include "inspection/profiles/ProfileWritingJob.h"

#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileReader.h"
#include "platform/PlatformServicesImp.h"

#include <QFile>

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

} // namespace

ProfileWritingJob::ProfileWritingJob(const QString& file, const ProfileChange& change)
    : m_file(file), m_change(change), m_isLarge(ProfileDocument(file).isLarge())
{
}

ProfileWritingJob::~ProfileWritingJob() = default;

bool ProfileWritingJob::step()
{
    switch (m_stage++) {
    case 0: open(); return true;
    case 1: parse(); return true;
    case 2: write(); return true;
    case 3: copy(); return true;
    case 4: read(); return true;
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

void ProfileWritingJob::write()
{
    m_isWritten = callService(m_file, m_change);
    m_cache.reset();
}

// What lies on disk need not be what the wide family remembers to have written.
void ProfileWritingJob::copy()
{
    m_isCopied = m_isWritten && QFile::copy(m_file, copiedFile());
}

void ProfileWritingJob::read()
{
    m_isReadBack = m_isCopied && reads(copiedFile(), m_change);
}

QString ProfileWritingJob::copiedFile() const
{
    return m_folder.filePath(QStringLiteral("read.ini"));
}

#include "inspection/profiles/ProfileAskingJob.h"

#include "inspection/profiles/ParsedProfileCache.h"

#include <QLocale>

#include <utility>

ProfileAskingJob::ProfileAskingJob(std::shared_ptr<const ProfileDocument> document, Next next,
                                   Receiver receiver)
    : m_document(std::move(document)),
      m_next(std::move(next)),
      m_receiver(std::move(receiver)),
      m_reader(m_document->path())
{
}

ProfileAskingJob::~ProfileAskingJob() = default;

bool ProfileAskingJob::step()
{
    if (m_name >= 0) {
        askNarrow();
        return true;
    }
    return askWide();
}

bool ProfileAskingJob::askWide()
{
    m_name = m_next();
    if (m_name < 0)
        return false;
    if (!m_cache)
        m_cache = std::make_unique<ParsedProfileCache>(m_document->path());
    const auto [section, key] = m_document->name(m_name);
    m_reading = {section, key, m_reader.wide(section, key), {}};
    return true;
}

void ProfileAskingJob::askNarrow()
{
    m_reading.narrow = m_reader.narrow(m_reading.section, m_reading.key);
    ++m_count;
    m_receiver(std::exchange(m_name, -1), m_reading);
}

QString ProfileAskingJob::progress() const
{
    return tr("Values: %1").arg(QLocale().toString(m_count));
}

bool ProfileAskingJob::isNextStepLong() const
{
    return !m_cache && m_document->isLarge();
}

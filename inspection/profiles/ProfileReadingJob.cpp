#include "inspection/profiles/ProfileReadingJob.h"

#include "inspection/profiles/ParsedProfileCache.h"

#include <QLocale>

#include <utility>

ProfileReadingJob::ProfileReadingJob(const QString& path, Receiver receiver)
    : m_loading(std::in_place, path),
      m_path(m_loading->document().path()),
      m_isLarge(m_loading->document().isLarge()),
      m_reader(m_path),
      m_receiver(std::move(receiver))
{
}

ProfileReadingJob::~ProfileReadingJob() = default;

bool ProfileReadingJob::step()
{
    if (m_loading)
        load();
    else if (!m_cache)
        m_cache = std::make_unique<ParsedProfileCache>(m_path);
    else
        readNext();
    return m_loading || m_read < m_names.size();
}

void ProfileReadingJob::load()
{
    if (m_loading->step())
        return;
    m_names = std::move(m_loading->names());
    m_receiver.document(std::move(m_loading->document()));
    m_loading.reset();
}

void ProfileReadingJob::readNext()
{
    const auto& [section, key] = m_names[m_read++];
    m_receiver.reading({section, key, m_reader.wide(section, key), m_reader.narrow(section, key)});
}

QString ProfileReadingJob::progress() const
{
    return m_loading ? QString() : tr("%1 values").arg(QLocale().toString(qulonglong{m_read}));
}

bool ProfileReadingJob::isNextStepLong() const
{
    return m_isLarge && !m_cache;
}

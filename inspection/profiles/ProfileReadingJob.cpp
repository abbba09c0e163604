#include "inspection/profiles/ProfileReadingJob.h"

#include <utility>

namespace {

// Each call reads the whole file: so many bytes in all are read in a fraction of a second.
constexpr qint64 bytesAtOnce = qint64{32} * 1024 * 1024;

bool isAskedAtOnce(const ProfileDocument& document)
{
    const qint64 size = document.lines().bytes().size();
    return size * document.names().count() <= bytesAtOnce;
}

} // namespace

ProfileReadingJob::ProfileReadingJob(const QString& path, Receiver receiver)
    : m_loading(std::in_place, path), m_receiver(std::move(receiver))
{
}

ProfileReadingJob::~ProfileReadingJob() = default;

bool ProfileReadingJob::step()
{
    if (!m_loading)
        return m_asking && m_asking->step();
    load();
    return true;
}

void ProfileReadingJob::load()
{
    if (m_loading->step())
        return;
    const auto document = std::make_shared<const ProfileDocument>(std::move(m_loading->document()));
    m_loading.reset();
    const int count = document->names().count();
    if (isAskedAtOnce(*document))
        m_asking.emplace(
            document, [this, count] { return m_next < count ? m_next++ : -1; }, m_receiver.reading);
    m_receiver.document(document, document->names().found());
}

QString ProfileReadingJob::progress() const
{
    return m_asking ? m_asking->progress() : QString();
}

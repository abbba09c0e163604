#include "inspection/files/FileSearchJob.h"

#include "inspection/files/WindowsPath.h"

#include <utility>

namespace {

constexpr std::size_t batch = 64; // entries that a step asks for: about 1 ms
constexpr int large = 5000;       // entries of a directory that the service takes long to list

} // namespace

FileSearchJob::FileSearchJob(const QString& pattern, Receiver receiver)
    : m_pattern(pattern), m_receiver(std::move(receiver)), m_readAhead(pattern)
{
}

QString FileSearchJob::fault(const QString& pattern)
{
    if (pattern.isEmpty())
        return tr("Type a pattern first, such as /etc/*.conf.");
    if (!pattern.contains(u'/') && WindowsPath::isIn(pattern))
        return tr("The service finds nothing for %1. %2 With slashes it reads %3.")
            .arg(pattern, WindowsPath::note(), WindowsPath::asMeantHere(pattern));
    if (!pattern.contains(u'/'))
        return tr("The service finds nothing for a pattern without a directory, whatever "
                  "the working directory holds. Put one before it, such as ./%1.")
            .arg(pattern);
    return {};
}

bool FileSearchJob::step()
{
    if (!m_readAhead.isDone()) {
        m_readAhead.step();
        return true;
    }
    std::vector<FoundEntry> entries;
    while (entries.size() < batch) {
        std::optional<FoundEntry> entry = next();
        if (!entry)
            break;
        entries.push_back(std::move(*entry));
    }
    const bool isFull = entries.size() == batch;
    m_found += static_cast<int>(entries.size());
    if (!entries.empty())
        m_receiver(std::move(entries));
    return isFull;
}

std::optional<FoundEntry> FileSearchJob::next()
{
    return m_search ? m_search->next() : m_search.emplace().first(m_pattern);
}

QString FileSearchJob::progress() const
{
    return tr("%L1 found").arg(m_found);
}

bool FileSearchJob::isNextStepLong() const
{
    return m_readAhead.isDone() && m_readAhead.entries() >= large && !m_search;
}

QString FileSearchJob::remark() const
{
    QStringList remarks;
    if (WindowsPath::isIn(m_pattern))
        remarks += WindowsPath::note();
    if (!m_readAhead.error().isEmpty())
        remarks += tr("The folder cannot be opened: %1.").arg(m_readAhead.error());
    if (m_readAhead.undecodableNames() > 0)
        remarks += leftOutNames();
    return remarks.join(u' ');
}

QString FileSearchJob::leftOutNames() const
{
    return tr("Names in the folder that are no text in the locale's encoding, and that the service "
              "leaves out: %L1.")
        .arg(m_readAhead.undecodableNames());
}

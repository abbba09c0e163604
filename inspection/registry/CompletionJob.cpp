#include "inspection/registry/CompletionJob.h"

#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TypedAddress.h"

#include <QRegularExpression>

#include <utility>

CompletionJob::CompletionJob(std::shared_ptr<const RegistryIndex> index, const QString& typed,
                             int most)
    : m_index(std::move(index)), m_most(most)
{
    const int separator = typed.lastIndexOf(QRegularExpression(QStringLiteral("[\\\\/]")));
    m_before = typed.left(separator + 1);
    m_rest = typed.mid(separator + 1);
    m_parents = pathsOfAddress(m_before);
    const QStringList roots = m_before.isEmpty() ? RegistryPath::rootNames() : QStringList();
    for (const QString& root : roots) {
        if (begins(root))
            m_roots.append(root);
    }
}

bool CompletionJob::step()
{
    if (count() >= m_most || (!m_scan && m_parents.isEmpty()))
        return false;
    if (!m_scan)
        m_scan.emplace(*m_index, m_parents.takeFirst());
    const auto take = [this](const QString& name) {
        if (count() < m_most && !m_roots.contains(name))
            m_keys.insert(name);
    };
    if (!m_scan->next([this](const QString& name) { return begins(name); }, take))
        m_scan.reset();
    return true;
}

bool CompletionJob::begins(const QString& name) const
{
    return name.startsWith(m_rest, Qt::CaseInsensitive);
}

QStringList CompletionJob::completions() const
{
    QStringList found = m_roots;
    for (const QString& name : m_keys)
        found.append(name);
    for (QString& name : found)
        name.prepend(m_before);
    return found;
}

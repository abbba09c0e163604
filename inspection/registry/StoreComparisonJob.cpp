#include "inspection/registry/StoreComparisonJob.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreSections.h"

#include <QFile>

#include <algorithm>

namespace {

constexpr int stepSize = 100; // entries

} // namespace

StoreComparisonJob::StoreComparisonJob() : m_file(FileStamp::of(RawStore::fileName())) {}

StoreComparisonJob::~StoreComparisonJob() = default;

bool StoreComparisonJob::step()
{
    if (!RawStore::exists() || m_difference)
        return false;
    if (!m_copy)
        open();
    else if (!m_sections.isEmpty())
        static_cast<void>(m_copy->contains(nameInSection(m_sections.takeLast())));
    else if (!m_isListed)
        list();
    else
        return compareSome();
    return true;
}

void StoreComparisonJob::open()
{
    const QString copy = m_folder.filePath(QStringLiteral("copy"));
    if (m_file.exists())
        QFile::copy(RawStore::fileName(), copy);
    m_copy = RawStore::opened(copy);
    m_sections = storeSections(copy);
}

// The shorter list may be the beginning of the longer one.
void StoreComparisonJob::list()
{
    m_isListed = true;
    m_names = m_copy->allKeys();
    const QStringList held = RawStore({}, RawStore::Reach::OwnFile).allEntries();
    const auto [inFile, inStore] =
        std::mismatch(m_names.cbegin(), m_names.cend(), held.cbegin(), held.cend());
    if (inFile != m_names.cend())
        differAt(*inFile);
    else if (inStore != held.cend())
        differAt(*inStore);
}

bool StoreComparisonJob::compareSome()
{
    const RawStore store({}, RawStore::Reach::OwnFile);
    const int end = qMin(m_names.size(), m_at + stepSize);
    for (; m_at < end && !m_difference; ++m_at) {
        const QString& name = m_names.at(m_at);
        if (!store.contains(name) || store.value(name) != m_copy->value(name))
            differAt(name);
    }
    return m_at < m_names.size();
}

void StoreComparisonJob::differAt(const QString& name)
{
    m_difference = Difference{name, m_copy->contains(name), m_copy->value(name)};
}

#include "inspection/registry/StoreComparisonJob.h"

#include "inspection/registry/RawStore.h"
#include "platform/registry/StoreSections.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace {

constexpr int stepSize = 100; // entries

} // namespace

StoreComparisonJob::StoreComparisonJob() : m_file(KnownFile::of(RawStore::fileName())) {}

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

// The copy has been parsed as a whole by the time its entries are compared.
bool StoreComparisonJob::isDamaged() const
{
    return m_copy && m_copy->status() == QSettings::FormatError;
}

void StoreComparisonJob::open()
{
    const QString copy = m_folder.filePath(QStringLiteral("copy"));
    // Where there is no room for a copy, another name is enough: it is parsed under that name.
    if (m_file.exists() && !QFile::copy(RawStore::fileName(), copy))
        QFile::link(QFileInfo(RawStore::fileName()).absoluteFilePath(), copy);
    m_copy = RawStore::opened(copy);
    m_sections = storeSections(copy);
}

// Both lists are sorted: of two names in the same place the other list lacks the lower one.
void StoreComparisonJob::list()
{
    m_isListed = true;
    m_names = m_copy->allKeys();
    const QStringList held = RawStore({}, RawStore::Reach::OwnFile).allEntries();
    const auto [inFile, inStore] =
        std::mismatch(m_names.cbegin(), m_names.cend(), held.cbegin(), held.cend());
    const bool isFileLonger = inFile != m_names.cend();
    const bool isStoreLonger = inStore != held.cend();
    if (isFileLonger && (!isStoreLonger || *inFile < *inStore))
        differAt(*inFile);
    else if (isStoreLonger)
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

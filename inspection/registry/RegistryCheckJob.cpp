#include "inspection/registry/RegistryCheckJob.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryListing.h"

#include <QLocale>

#include <algorithm>

bool RegistryCheckJob::step()
{
    if (!m_values.empty()) {
        lookAtValue(m_values.back());
        m_values.pop_back();
        return true;
    }
    const RegistryWalk::Step step = m_walk.next();
    if (step == RegistryWalk::Step::Key)
        enterKey();
    return step != RegistryWalk::Step::End;
}

QString RegistryCheckJob::progress() const
{
    return QLocale().toString(m_looked);
}

// Of a key that no host library can open, the values are those of another one.
void RegistryCheckJob::enterKey()
{
    const QString path = m_walk.path();
    if (isRedirected(path)) {
        m_findings.push_back({path, {}, {}, redirectedKeyText(path), false});
        return;
    }
    const auto names = path.isEmpty() ? RegistryIndex::read() : std::make_shared<RegistryIndex>();
    m_values = ListedValue::ofKey(path, *names);
    std::reverse(m_values.begin(), m_values.end());
}

// The mark of a created key is no value.
void RegistryCheckJob::lookAtValue(const ListedValue& value)
{
    ++m_looked;
    if (rawRegistryEntry(value.entryPath()).isNull() || value.remark().isEmpty())
        return;
    m_findings.push_back(
        {m_walk.path(), value.name(), value.raw(), value.remark(), value.isReadable()});
}

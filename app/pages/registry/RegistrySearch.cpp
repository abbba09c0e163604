#include "app/pages/registry/RegistrySearch.h"

#include "app/pages/registry/RegistryFormat.h"
#include "app/pages/registry/RegistryListing.h"
#include "app/pages/registry/RegistryPath.h"

RegistrySearch::RegistrySearch(const QString& text, const QString& path, bool inNames, bool inData)
    : m_text(text), m_inNames(inNames), m_inData(inData), m_walk(path)
{
}

bool RegistrySearch::step()
{
    if (isFull())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: lookAtKey(); return true;
    case RegistryWalk::Step::Value: lookAtValue(); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

void RegistrySearch::lookAtKey()
{
    if (m_inNames && matches(RegistryPath::name(m_walk.path())))
        m_hits.push_back({m_walk.path(), {}, {}});
}

void RegistrySearch::lookAtValue()
{
    const RegistryReading reading = m_walk.path().isEmpty()
                                        ? readAtRegistryRoot(m_walk.key(), m_walk.name())
                                        : m_walk.key().read(m_walk.name());
    const QString data =
        reading.readable ? RegistryFormat::data(reading.type, reading.data) : QString();
    const bool found = (m_inNames && matches(m_walk.name())) ||
                       (m_inData && reading.readable &&
                        matches(reading.type == REG_SZ ? registryText(reading.data) : data));
    if (found)
        m_hits.push_back({m_walk.path(), m_walk.name(), data});
}

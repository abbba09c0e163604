#include "inspection/registry/KeysAlongJob.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <algorithm>

namespace {

constexpr std::size_t stepSize = 250; // values

} // namespace

KeysAlongJob::KeysAlongJob(std::vector<RegistryValueName> values) : m_values(std::move(values)) {}

bool KeysAlongJob::step()
{
    if (m_next == m_values.size())
        return false;
    const std::size_t end = std::min(m_values.size(), m_next + stepSize);
    while (m_next < end)
        look(m_values[m_next++]);
    return true;
}

// The mark of a created key is all that there is of that key.
void KeysAlongJob::look(const RegistryValueName& value)
{
    const QString key = RegistryPath::join(value.key, value.name);
    if (isRegistryKey(key))
        m_keys.append(key);
}

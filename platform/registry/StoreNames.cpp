#include "platform/registry/StoreNames.h"

namespace {

StoreNames::Longest longestOf(const QStringList& names)
{
    StoreNames::Longest longest;
    for (const QString& name : names) {
        const auto length = static_cast<unsigned int>(name.toUcs4().size());
        if (length > longest.length)
            longest = {name, length};
    }
    return longest;
}

} // namespace

const QString* StoreNames::at(unsigned int index) const
{
    return index < count() ? &m_names.at(static_cast<int>(index)) : nullptr;
}

const StoreNames::Longest& StoreNames::longest() const
{
    if (!m_longest)
        m_longest = longestOf(m_names);
    return *m_longest;
}

#include "inspection/registry/ListedValue.h"

#include "inspection/registry/ReadingRemark.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "platform/registry/TypeName.h"

ListedValue::ListedValue(std::shared_ptr<const Key> key, const QString& name, Place place)
    : m_key(std::move(key)), m_name(name), m_place(place)
{
}

std::vector<ListedValue> ListedValue::ofKey(const QString& path, const RegistryIndex& names)
{
    if (path.isEmpty())
        return ofRoot(names);
    const auto key = std::make_shared<Key>(path);
    std::vector<ListedValue> values;
    const QStringList listed = registryValueNames(path);
    values.reserve(static_cast<std::size_t>(listed.size()));
    for (const QString& name : listed)
        values.push_back(ListedValue(key, name, Place::InKey));
    return values;
}

std::vector<ListedValue> ListedValue::ofRoot(const RegistryIndex& names)
{
    const auto root = std::make_shared<Key>(QString());
    const RegistryIndex::Children children = names.children(QString());
    std::vector<ListedValue> values;
    for (const QString& name : children.groups) {
        if (!rawRegistryEntry(StoreEntry::ofValue(QString(), name)).isNull())
            values.push_back(ListedValue(root, name, Place::UnderRoot));
    }
    for (const QString& name : children.entries)
        values.push_back(ListedValue(root, name, Place::ListedAtRoot));
    return values;
}

QString ListedValue::entryPath() const
{
    return m_place == Place::UnderRoot ? StoreEntry::ofValue(QString(), m_name)
                                       : RegistryPath::join(redirectedPath(m_key->path), m_name);
}

// Directly under a root, deleting the value would take the whole key with it in which it is kept.
QString ListedValue::keyToDeleteFrom() const
{
    return m_place == Place::UnderRoot ? m_name : m_key->path;
}

bool ListedValue::isThere() const
{
    return hasRegistryEntry(entryPath());
}

QString ListedValue::redirection() const
{
    if (isRedirected(m_key->path))
        return redirectedKeyText(m_key->path);
    if (isRedirected(m_name))
        return redirectedValueText(RegistryPath::join(m_key->path, m_name));
    return QString();
}

const ListedValue::Contents& ListedValue::contents() const
{
    if (!m_contents)
        m_contents = read();
    return *m_contents;
}

ListedValue::Contents ListedValue::read() const
{
    const QVariant entry = rawRegistryEntry(entryPath());
    Contents contents;
    contents.raw = rawRegistryText(entry);
    contents.reading = m_place == Place::ListedAtRoot ? readAtRegistryRoot(m_key->key, m_name)
                                                      : m_key->key.read(m_name);
    contents.remark = readingRemark(contents.reading, entry);
    if (!contents.reading.readable && !isThere())
        contents.remark = tr("No longer there");
    else if (m_place == Place::InKey && isRedirected(m_name))
        contents.remark = redirectedValueText(entryPath());
    else if (contents.remark.isEmpty())
        contents.remark = placeRemark();
    return contents;
}

QString ListedValue::placeRemark() const
{
    switch (m_place) {
    case Place::UnderRoot:
        return tr("Set directly under a root: kept in the key \"%1\"").arg(m_name);
    case Place::ListedAtRoot:
        return tr("Only listed: asking for it by name looks into the key \"%1\"").arg(m_name);
    case Place::InKey: break;
    }
    return QString();
}

QString ListedValue::typeText() const
{
    return isReadable() ? registryTypeName(reading().type) : tr("unreadable");
}

QString ListedValue::dataText() const
{
    return isReadable() ? RegistryFormat::data(reading().type, reading().data) : remark();
}

QString ListedValue::wholeData() const
{
    return isReadable() ? RegistryFormat::editable(reading().type, reading().data) : remark();
}

QString ListedValue::copiedText() const
{
    const bool isNumber = reading().type == REG_DWORD || reading().type == REG_QWORD;
    return isNumber ? dataText() : wholeData();
}

#include "fuzz/PlainRegistry.h"

#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>

namespace {

constexpr unsigned int failure = 1;

QString slashed(QString name)
{
    return name.replace('\\', '/');
}

unsigned int lengthOf(const QString& name)
{
    return static_cast<unsigned int>(name.toUcs4().size());
}

QString longestOf(const QStringList& names)
{
    QString longest;
    for (const QString& name : names) {
        if (lengthOf(name) > lengthOf(longest))
            longest = name;
    }
    return longest;
}

// An entry without a name can be read by a slash alone.
QVariant entry(const QSettings& store, const QString& name)
{
    return store.value(name.isEmpty() ? QStringLiteral("/") : name);
}

unsigned int decode(QVariant value, ValueRequest& request)
{
    ValueRequest answer = request;
    const bool isGiven = QVarToRegValue(
        value, answer.hasType ? &answer.type : nullptr,
        answer.hasData ? reinterpret_cast<unsigned char*>(answer.data.data()) : nullptr,
        answer.hasSize ? &answer.size : nullptr);
    if (!isGiven)
        return failure;
    request = answer;
    return ERROR_SUCCESS;
}

} // namespace

QString PlainRegistry::path(const Key& parent, const QString& name)
{
    return parent ? *parent + '/' + name : name;
}

QString PlainRegistry::valueGroup(const Key& key, const QString& name)
{
    return key ? *key : name;
}

unsigned int PlainRegistry::open(const Key& parent, const QString& name, Key& result)
{
    const QString wanted = path(parent, name);
    if (!m_store.contains(wanted)) {
        m_store.beginGroup(wanted);
        const bool isEmpty = m_store.childKeys().isEmpty() && m_store.childGroups().isEmpty();
        m_store.endGroup();
        if (isEmpty)
            return ERROR_FILE_NOT_FOUND;
    }
    result = slashed(wanted);
    return ERROR_SUCCESS;
}

unsigned int PlainRegistry::create(const Key& parent, const QString& name)
{
    const QString wanted = slashed(path(parent, name));
    if (!wanted.isEmpty() && !m_store.contains(wanted))
        m_store.setValue(wanted, QVariant());
    return ERROR_SUCCESS;
}

unsigned int PlainRegistry::setValue(const Key& key, const QString& name, unsigned int type,
                                     const QByteArray& data, unsigned int size)
{
    QVariant value;
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    if (name.isEmpty() || !RegValueToQVar(value, type, bytes, size))
        return failure;
    m_store.beginGroup(valueGroup(key, name));
    m_store.setValue(slashed(name), value);
    m_store.endGroup();
    return ERROR_SUCCESS;
}

unsigned int PlainRegistry::read(const QString& group, const QString& name, ValueRequest& request)
{
    m_store.beginGroup(group);
    const QVariant value = m_store.value(slashed(name));
    m_store.endGroup();
    return value.isNull() ? failure : decode(value, request);
}

unsigned int PlainRegistry::value(const Key& key, const QString& name, ValueRequest& request)
{
    return name.isEmpty() ? failure : read(valueGroup(key, name), name, request);
}

unsigned int PlainRegistry::valueOfName(const Key& key, const QString& name, ValueRequest& request)
{
    return name.isEmpty() ? failure : read(key.value_or(QString()), name, request);
}

unsigned int PlainRegistry::deleteValue(const Key& key, const QString& name)
{
    if (name.isEmpty())
        return failure;
    m_store.beginGroup(key.value_or(QString()));
    m_store.remove(slashed(name));
    m_store.endGroup();
    return ERROR_SUCCESS;
}

unsigned int PlainRegistry::deleteKey(const Key& key, const QString& name)
{
    if (name.isEmpty())
        return failure;
    m_store.beginGroup(key.value_or(QString()));
    deleteAll(slashed(name));
    m_store.endGroup();
    return ERROR_SUCCESS;
}

void PlainRegistry::deleteAll(const QString& path)
{
    if (path.isEmpty())
        return;
    m_store.beginGroup(path);
    const QStringList groups = m_store.childGroups();
    for (const QString& group : groups)
        deleteAll(group);
    const QStringList names = m_store.childKeys();
    for (const QString& name : names)
        m_store.remove(name);
    m_store.endGroup();
    m_store.remove(path);
}

unsigned int PlainRegistry::keyAt(const Key& key, unsigned int index, QString& name)
{
    m_store.beginGroup(key.value_or(QString()));
    const QStringList groups = m_store.childGroups();
    m_store.endGroup();
    if (index >= static_cast<unsigned int>(groups.size()))
        return failure;
    name = groups.at(static_cast<int>(index));
    return ERROR_SUCCESS;
}

unsigned int PlainRegistry::valueAt(const Key& key, unsigned int index, QString& name,
                                    ValueRequest& request)
{
    m_store.beginGroup(key.value_or(QString()));
    const QStringList names = m_store.childKeys();
    const bool isThere = index < static_cast<unsigned int>(names.size());
    if (isThere)
        name = names.at(static_cast<int>(index));
    const QVariant value = isThere ? entry(m_store, name) : QVariant();
    m_store.endGroup();
    return isThere ? decode(value, request) : failure;
}

PlainRegistry::Information PlainRegistry::information(const Key& key)
{
    m_store.beginGroup(key.value_or(QString()));
    const QStringList groups = m_store.childGroups();
    const QStringList names = m_store.childKeys();
    const QString longest = longestOf(names);
    ValueRequest size;
    size.hasSize = true;
    // Intended: of the value with the longest name.
    if (!names.isEmpty())
        decode(entry(m_store, longest), size);
    m_store.endGroup();
    return {static_cast<unsigned int>(groups.size()), lengthOf(longestOf(groups)),
            static_cast<unsigned int>(names.size()), lengthOf(longest), size.size};
}

#include "inspection/registry/ImportOverlaps.h"

#include "inspection/registry/RegistryPath.h"

#include <QLocale>

using Action = RegFileEntry::Action;

namespace {

// Adds a name; another one that differs from it in case only, empty where there is none or where
// the name is known already.
QString newTwin(QMultiHash<QString, QString>& names, const QString& name)
{
    const QString folded = name.toCaseFolded();
    if (names.contains(folded, name))
        return {};
    QString other = names.value(folded);
    names.insert(folded, name);
    return other;
}

constexpr int namesAtOnce = 250;

// Where the value of a statement is kept.
QString valuePath(const QString& key, const QString& name)
{
    return RegistryPath::join(key, RegistryPath::slashed(name));
}

bool isBelow(const QString& path, const QString& key)
{
    return path.startsWith(key + QLatin1Char('/'));
}

} // namespace

ImportOverlaps::ImportOverlaps() = default;

ImportOverlaps::Place ImportOverlaps::placeOf(const RegFileEntry& entry)
{
    return {entry.key.section(QLatin1Char('\\'), 0, 0).toUpper(), entry.line};
}

bool ImportOverlaps::readSome(const RegFileEntry& entry)
{
    if (!m_index)
        m_index = RegistryIndex::read();
    if (!m_reader) {
        const std::optional<QString> key = unreadKey(entry);
        if (!key)
            return false;
        m_readKey = *key;
        m_reader.emplace(*m_index, m_readKey);
    }
    for (int i = 0; i < namesAtOnce && m_reader; ++i) {
        if (m_reader->next()) {
            auto& names = m_reader->isGroup() ? m_subKeys : m_valueNames;
            names[m_readKey].insert(m_reader->name().toCaseFolded(), m_reader->name());
        } else {
            m_read.insert(m_readKey);
            m_reader.reset();
        }
    }
    return true;
}

// One of the keys in which the statement names something.
std::optional<QString> ImportOverlaps::unreadKey(const RegFileEntry& entry) const
{
    QString path;
    RegistryPath::parse(entry.key, path);
    if (entry.action == Action::SetValue || entry.action == Action::DeleteValue)
        path = valuePath(path, entry.name);
    while (!path.isEmpty()) {
        path = RegistryPath::parent(path);
        if (!m_read.contains(path))
            return path;
    }
    return std::nullopt;
}

QStringList ImportOverlaps::add(const RegFileEntry& entry)
{
    while (readSome(entry)) {
    }
    m_replacedLine = 0;
    QString path;
    RegistryPath::parse(entry.key, path);
    QStringList remarks = keyTwins(path);
    if (entry.action == Action::CreateKey) {
        remarks += sameKey(entry, path);
    } else if (entry.action == Action::DeleteKey) {
        remarks += deletedBelow(entry, path);
        m_deletedKeys.insert(path);
    } else {
        const QString entryPath = valuePath(path, entry.name);
        remarks += valueTwins(RegistryPath::parent(entryPath), RegistryPath::name(entryPath));
        remarks += sameValue(entry, entryPath);
        if (entry.action == Action::DeleteValue)
            m_deletedValues.insert(entryPath);
    }
    remarks.removeAll(QString());
    return remarks;
}

QString ImportOverlaps::sameKey(const RegFileEntry& entry, const QString& path)
{
    const Place place = placeOf(entry);
    const auto first = m_keys.constFind(path);
    if (first == m_keys.cend()) {
        m_keys.insert(path, place);
        m_keysOfRoots[place.root].insert(path, place.line);
    } else if (first->root != place.root) {
        return tr("The same key as under %1 in line %2: all root keys are one.")
            .arg(first->root, QLocale().toString(first->line));
    }
    return {};
}

// Of the keys under another root the key itself comes first, and then the first one below it.
QString ImportOverlaps::deletedBelow(const RegFileEntry& entry, const QString& path) const
{
    const QString root = placeOf(entry).root;
    QString found;
    Place place;
    for (auto keys = m_keysOfRoots.cbegin(); keys != m_keysOfRoots.cend(); ++keys) {
        if (keys.key() == root)
            continue;
        auto at = keys->constFind(path);
        if (at == keys->cend()) // names like "Key-Old" stand between "Key" and what is below it
            at = keys->lowerBound(path + QLatin1Char('/'));
        const bool isDeleted = at != keys->cend() && (at.key() == path || isBelow(at.key(), path));
        if (!isDeleted || (!found.isNull() && found < at.key()))
            continue;
        found = at.key();
        place = {keys.key(), at.value()};
    }
    if (found.isNull())
        return {};
    return tr("Deletes what line %2 puts under %1: all root keys are one.")
        .arg(place.root, QLocale().toString(place.line));
}

// Under one and the same root a later statement wins on Windows too.
QString ImportOverlaps::sameValue(const RegFileEntry& entry, const QString& entryPath)
{
    const Place place = placeOf(entry);
    const auto before = m_values.constFind(entryPath);
    QString remark;
    if (before != m_values.cend() && before->root != place.root) {
        m_replacedLine = before->line;
        remark = tr("The same value as under %1 in line %2: all root keys are one, and the later "
                    "statement wins.")
                     .arg(before->root, QLocale().toString(before->line));
    }
    m_values.insert(entryPath, place);
    return remark;
}

// A key that is there by its very name is no news, and each other key is told once.
QStringList ImportOverlaps::keyTwins(const QString& path)
{
    QStringList remarks;
    QString parent;
    const QStringList levels = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& level : levels) {
        const QString key = RegistryPath::join(parent, level);
        const QString other = newTwin(m_subKeys[parent], level);
        if (!other.isEmpty())
            remarks += tr("%1 differs from \"%2\" in case only: two keys here, one on Windows.")
                           .arg(RegistryPath::shown(key), other);
        parent = key;
    }
    return remarks;
}

QStringList ImportOverlaps::valueTwins(const QString& path, const QString& name)
{
    const QString other = newTwin(m_valueNames[path], name);
    if (other.isEmpty())
        return {};
    return {tr("\"%1\" differs from \"%2\" in case only: two values here, one on Windows.")
                .arg(name, other)};
}

bool ImportOverlaps::isDeletedBefore(const QString& path) const
{
    if (m_deletedValues.contains(path))
        return true;
    QString key = path;
    while (!key.isEmpty() && !m_deletedKeys.contains(key))
        key = RegistryPath::parent(key);
    return !key.isEmpty();
}

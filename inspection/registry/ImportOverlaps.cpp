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

QMultiHash<QString, QString> folded(const QStringList& names)
{
    QMultiHash<QString, QString> hash;
    hash.reserve(names.size());
    for (const QString& name : names)
        hash.insert(name.toCaseFolded(), name);
    return hash;
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

QStringList ImportOverlaps::add(const RegFileEntry& entry)
{
    if (!m_index)
        m_index = RegistryIndex::read();
    m_replacedLine = 0;
    QString path;
    RegistryPath::parse(entry.key, path);
    QStringList remarks = keyTwins(path);
    if (entry.action == Action::CreateKey) {
        remarks += sameKey(entry, path);
    } else if (entry.action == Action::DeleteKey) {
        remarks += deletedBelow(entry, path);
        m_deletedKeys.append(path);
    } else {
        const QString entryPath = RegistryPath::join(path, RegistryPath::slashed(entry.name));
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
    if (first == m_keys.cend())
        m_keys.insert(path, place);
    else if (first->root != place.root)
        return tr("The same key as under %1 in line %2: all root keys are one.")
            .arg(first->root, QLocale().toString(first->line));
    return {};
}

QString ImportOverlaps::deletedBelow(const RegFileEntry& entry, const QString& path) const
{
    const QString root = placeOf(entry).root;
    const auto isForeign = [&root](const Place& place) { return place.root != root; };
    auto at = m_keys.constFind(path);
    if (at == m_keys.cend() || !isForeign(*at)) {
        // Names like "Key-Old" stand between "Key" and what is below it.
        at = m_keys.lowerBound(path + QLatin1Char('/'));
        while (at != m_keys.cend() && isBelow(at.key(), path) && !isForeign(*at))
            ++at;
        if (at == m_keys.cend() || !isBelow(at.key(), path))
            return {};
    }
    return tr("Deletes what line %2 puts under %1: all root keys are one.")
        .arg(at->root, QLocale().toString(at->line));
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
        list(parent);
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
    list(path);
    const QString other = newTwin(m_valueNames[path], name);
    if (other.isEmpty())
        return {};
    return {tr("\"%1\" differs from \"%2\" in case only: two values here, one on Windows.")
                .arg(name, other)};
}

void ImportOverlaps::list(const QString& path)
{
    if (m_subKeys.contains(path))
        return;
    const RegistryIndex::Children children = m_index->children(path);
    m_subKeys.insert(path, folded(children.groups));
    m_valueNames.insert(path, folded(children.entries));
}

bool ImportOverlaps::isDeletedBefore(const QString& path) const
{
    if (m_deletedValues.contains(path))
        return true;
    for (const QString& key : m_deletedKeys) {
        if (path == key || isBelow(path, key))
            return true;
    }
    return false;
}

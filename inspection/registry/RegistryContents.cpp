#include "inspection/registry/RegistryContents.h"

#include "inspection/registry/ImportCheck.h"
#include "inspection/registry/RawStore.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "platform/registry/ValueChange.h"
#include "regfile/RegFileReader.h"

#include <QFileInfo>
#include <QSettings>

using Action = RegFileEntry::Action;

/// Carries statements of a registry file out on contents that begin empty.
class ImportedContents
{
public:
    explicit ImportedContents(RegistryContents& contents) : m_contents(contents) {}

    void add(const RegFileEntry& entry)
    {
        if (ImportCheck(entry).outcome() == ImportCheck::Outcome::Refused) {
            ++m_contents.m_refused;
            return;
        }
        QString path;
        RegistryPath::parse(entry.key, path);
        if (entry.action == Action::DeleteKey)
            m_contents.removeTree(path);
        else if (entry.action == Action::DeleteValue)
            m_contents.removeTree(StoreEntry::deletedWithValue(path, entry.name));
        else
            set(path, entry);
    }

private:
    void set(const QString& path, const RegFileEntry& entry)
    {
        if (!path.isEmpty())
            m_contents.m_entries.emplace(path, QVariant());
        if (entry.action != Action::SetValue)
            return;
        const ValueChange change(entry.type, ImportCheck::dataToSet(entry));
        m_contents.m_entries[StoreEntry::ofValue(path, entry.name)] = change.storedText();
    }

    RegistryContents& m_contents;
};

RegistryContents RegistryContents::ofKey(const QString& path)
{
    RegistryContents contents;
    const RawStore group(path);
    const QStringList names = group.allEntries();
    for (const QString& name : names)
        contents.m_entries.emplace_hint(contents.m_entries.end(), name, group.value(name));
    return contents;
}

RegistryContents RegistryContents::ofStoreFile(const QString& file, const QString& path)
{
    RegistryContents contents;
    const auto store = RawStore::opened(QFileInfo(file).absoluteFilePath());
    if (store->status() == QSettings::AccessError)
        contents.m_error = tr("The file cannot be read.");
    const QStringList names = store->allKeys();
    for (const QString& name : names)
        contents.m_entries.emplace_hint(contents.m_entries.end(), name, store->value(name));
    contents.restrictTo(path);
    return contents;
}

RegistryContents RegistryContents::ofRegistryFile(std::unique_ptr<QIODevice> file,
                                                  const QString& path)
{
    RegistryContents contents;
    ImportedContents imported(contents);
    RegFileReader reader(std::move(file));
    RegFileEntry entry;
    RegFileReader::Step step = RegFileReader::Step::Nothing;
    while ((step = reader.next(entry)) != RegFileReader::Step::End) {
        if (step == RegFileReader::Step::Statement)
            imported.add(entry);
    }
    contents.m_error = reader.error();
    contents.restrictTo(path);
    return contents;
}

// What is below a path lies between its name with "/" and its name with the next character.
void RegistryContents::removeTree(const QString& path)
{
    m_entries.erase(path);
    m_entries.erase(m_entries.lower_bound(path + QLatin1Char('/')),
                    m_entries.lower_bound(path + QChar(u'/' + 1)));
}

void RegistryContents::restrictTo(const QString& path)
{
    if (path.isEmpty())
        return;
    const QString prefix = path + QLatin1Char('/');
    const auto end = m_entries.lower_bound(path + QChar(u'/' + 1));
    Entries below;
    for (auto at = m_entries.lower_bound(prefix); at != end; ++at)
        below.emplace_hint(below.end(), at->first.mid(prefix.size()), at->second);
    m_entries = std::move(below);
}

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariant>

#include <map>
#include <memory>

class QIODevice;

/// All entries of a store, of one of its keys, or of what importing a registry file into an empty
/// store would leave: paths below the key, in order, each with the raw entry. The mark of a created
/// key is a null QVariant.
class RegistryContents
{
    Q_DECLARE_TR_FUNCTIONS(RegistryContents)

public:
    using Entries = std::map<QString, QVariant>;

    /// The store's, as they are now, below the key of this path.
    static RegistryContents ofKey(const QString& path);
    /// Those of a file in the store's format. There must be a store.
    static RegistryContents ofStoreFile(const QString& file, const QString& path);
    /// Those of a registry file; `file` is open for reading.
    static RegistryContents ofRegistryFile(std::unique_ptr<QIODevice> file, const QString& path);

    const Entries& entries() const { return m_entries; }
    /// Why nothing could be read, in words; empty while all is well.
    const QString& error() const { return m_error; }
    /// How many statements of a registry file would be refused.
    int refused() const { return m_refused; }

private:
    void removeTree(const QString& path);
    void restrictTo(const QString& path);

    Entries m_entries;
    QString m_error;
    int m_refused = 0;

    friend class ImportedContents;
};

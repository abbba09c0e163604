#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// The dynamic loader's list of libraries, which `ldconfig` writes.
class LoaderCache
{
public:
    /// Empty where the file is missing, or is no such list, and for an empty path.
    static LoaderCache read(const QString& path);

    /// The path of the library for this machine; empty where it is not listed.
    QByteArray pathOf(const QByteArray& name) const { return m_paths.value(name); }

private:
    void addEntries(const QByteArray& bytes);

    QHash<QByteArray, QByteArray> m_paths;
};

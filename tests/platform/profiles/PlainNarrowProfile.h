#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// The narrow family's rules of reading and writing, done plainly with a text stream and maps: what
/// the fast ones are held against.
class PlainNarrowProfile
{
public:
    using Entries = QMap<QString, QString>;

    /// Of a file that cannot be read, nothing.
    explicit PlainNarrowProfile(const QString& path);

    /// By their header lines, brackets included.
    const QMap<QString, Entries>& sections() const { return m_sections; }

    void set(const QString& header, const QString& key, const QString& value);

    /// The bytes of the file that holds this alone, which is written to `path`.
    QByteArray writtenTo(const QString& path) const;

private:
    QMap<QString, Entries> m_sections;
};

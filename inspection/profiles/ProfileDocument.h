#pragma once

#include "inspection/profiles/ProfileNames.h"
#include "platform/profiles/LineReading.h"
#include "platform/profiles/NarrowProfileFile.h"

#include <QByteArray>
#include <QCoreApplication>

#include <utility>
#include <vector>

/// A profile file as it lies on disk, with what each family makes of its lines.
class ProfileDocument
{
    Q_DECLARE_TR_FUNCTIONS(ProfileDocument)

public:
    struct Line
    {
        int number = 0;     ///< from 1 on
        QString text;       ///< the beginning of a very long line
        LineReading narrow; ///< without names
        LineReading wide;   ///< without names
        /// False where the services lose what the line says.
        bool isUtf8 = true;
    };
    /// Section and key.
    using Name = ProfileNames::Name;

    /// Bytes of the largest file of which more than the lines is kept.
    static constexpr qint64 largestWhole = NarrowProfileFile::largestText;

    /// Why the path cannot be a profile, or an empty text.
    static QString fault(const QString& path);

    /// All that lies in the file; nothing where it cannot be read.
    static QByteArray bytesOf(const QString& path);

    ProfileDocument() = default;
    /// A file that is there, or not, without its lines.
    explicit ProfileDocument(const QString& path);

    const QString& path() const { return m_path; }
    bool exists() const { return m_exists; }
    /// What is not told of a file of which only the lines are kept, in sentences; otherwise empty.
    QString restriction() const;
    /// True where the services take milliseconds for one call.
    bool isLarge() const { return m_isLarge; }

    void setLines(ProfileLines lines) { m_lines = std::move(lines); }
    const ProfileLines& lines() const { return m_lines; }
    /// A line, from 0 on; where it is not UTF-8, `codec` decodes its text.
    Line line(int index, const QTextCodec* codec = nullptr) const;

    void setNames(ProfileNames names) { m_names = std::move(names); }
    /// What lines of the file name for either family, each name once, in the order of the file.
    const ProfileNames& names() const { return m_names; }
    Name name(int index) const { return m_names.name(m_lines, index); }

private:
    QString m_path;
    bool m_exists = false;
    bool m_isLarge = false;
    qint64 m_size = 0;
    ProfileLines m_lines;
    ProfileNames m_names;
};

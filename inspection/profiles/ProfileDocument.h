#pragma once

#include "platform/profiles/LineReading.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

#include <utility>
#include <vector>

/// A profile file as it lies on disk, with what each family makes of its lines.
class ProfileDocument
{
    Q_DECLARE_TR_FUNCTIONS(ProfileDocument)

public:
    struct Line
    {
        int number = 0; ///< from 1 on
        QString text;
        LineReading narrow;
        LineReading wide;
    };
    /// Section and key.
    using Name = std::pair<QString, QString>;

    /// Why the path cannot be a profile, or an empty text.
    static QString fault(const QString& path);

    /// All that lies in the file; nothing where it cannot be read.
    static QByteArray bytesOf(const QString& path);

    ProfileDocument() = default;
    /// A file that is there, or not, without its lines.
    explicit ProfileDocument(const QString& path);

    const QString& path() const { return m_path; }
    bool exists() const { return m_exists; }
    /// True where the services take milliseconds for one call.
    bool isLarge() const { return m_isLarge; }
    std::vector<Line>& lines() { return m_lines; }
    const std::vector<Line>& lines() const { return m_lines; }

    /// What lines of the file name for either family, each name once, in the order of the file.
    std::vector<Name> names() const;
    /// The numbers of the lines, from 1 on, that writing through a family loses, or loses a part
    /// of.
    std::vector<int> lostLines(ProfileFamily family) const;

private:
    QString m_path;
    bool m_exists = false;
    bool m_isLarge = false;
    std::vector<Line> m_lines;
};

#include "inspection/profiles/ProfileDocument.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

// Far above any profile. The wide family writes the whole file in one call, which cannot be divided
// into steps: with a larger file it would hold the window up.
constexpr qint64 largestFile = qint64{128} * 1024;

constexpr qint64 largeFile = qint64{16} * 1024;

bool isNamed(LineState state)
{
    return state == LineState::Entry || state == LineState::NotFound;
}

} // namespace

QString ProfileDocument::fault(const QString& path)
{
    const QFileInfo file(path);
    if (file.isDir())
        return tr("%1 is a folder.").arg(file.filePath());
    if (!file.exists() && !file.dir().exists())
        return tr("There is no folder %1.").arg(file.path());
    if (file.exists() && !file.isFile())
        return tr("%1 is not a regular file.").arg(file.filePath());
    if (file.exists() && !file.isReadable())
        return tr("%1 cannot be read.").arg(file.filePath());
    if (file.size() > largestFile)
        return tr("%1 is larger than %2 KiB, the most that is opened here.")
            .arg(file.filePath(), QString::number(largestFile / 1024));
    return {};
}

QByteArray ProfileDocument::bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ProfileDocument::ProfileDocument(const QString& path)
    : m_path(path), m_exists(QFileInfo::exists(path)), m_isLarge(QFileInfo(path).size() > largeFile)
{
}

std::vector<ProfileDocument::Name> ProfileDocument::names() const
{
    std::vector<Name> names;
    QSet<Name> seen;
    const auto add = [&](const LineReading& reading) {
        const Name name(reading.section, reading.key);
        if (!isNamed(reading.state) || seen.contains(name))
            return;
        seen.insert(name);
        names.push_back(name);
    };
    for (const Line& line : m_lines) {
        add(line.wide);
        add(line.narrow);
    }
    return names;
}

std::vector<int> ProfileDocument::lostLines(ProfileFamily family) const
{
    std::vector<int> numbers;
    for (const Line& line : m_lines) {
        if (isLost(family == ProfileFamily::Narrow ? line.narrow : line.wide))
            numbers.push_back(line.number);
    }
    return numbers;
}

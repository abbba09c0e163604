#include "app/pages/profiles/ProfileDocument.h"

#include "app/pages/profiles/NarrowLines.h"
#include "app/pages/profiles/WideLines.h"
#include "platform/NarrowProfileFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

// Far above any profile. The services read the whole file with each call: larger ones would halt
// the window again and again.
constexpr qint64 largestFile = qint64{512} * 1024;

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// As the narrow family decodes it.
QString textOf(const QString& path)
{
    NarrowProfileFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.text() : QString();
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

QString ProfileDocument::load(const QString& path)
{
    QString refused = fault(path);
    if (!refused.isEmpty())
        return refused;
    const QFileInfo file(path);
    m_path = file.absoluteFilePath();
    m_exists = file.exists();
    const QString text = textOf(m_path);
    const std::vector<LineReading> narrow = NarrowLines(text).readings();
    const std::vector<LineReading> wide = WideLines(bytesOf(m_path)).readings();
    const QStringList texts = text.split(QLatin1Char('\n'));
    m_lines.clear();
    m_lines.reserve(narrow.size());
    for (std::size_t i = 0; i < narrow.size(); ++i)
        m_lines.push_back(
            {texts.at(static_cast<int>(i)), narrow[i], i < wide.size() ? wide[i] : LineReading{}});
    return {};
}

std::vector<ProfileDocument::Name> ProfileDocument::names() const
{
    std::vector<Name> names;
    QSet<Name> seen;
    const auto add = [&](const LineReading& reading) {
        const Name name(reading.section, reading.key);
        if (reading.state != LineState::Entry || seen.contains(name))
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
    int number = 0;
    for (const Line& line : m_lines) {
        ++number;
        if (isLost(family == ProfileFamily::Narrow ? line.narrow.state : line.wide.state))
            numbers.push_back(number);
    }
    return numbers;
}

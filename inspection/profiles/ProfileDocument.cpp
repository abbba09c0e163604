#include "inspection/profiles/ProfileDocument.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

// What a text of Qt holds: beyond it the calls of the narrow family would end the program.
constexpr qint64 largestFile = qint64{1000} * 1024 * 1024;

// Bytes of a line that anybody looks at.
constexpr int longestText = 8192;

constexpr qint64 largeFile = qint64{16} * 1024;

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
        return tr("%1 is larger than %2 MiB: no call of either family can read it.")
            .arg(file.filePath(), QLocale().toString(largestFile / 1024 / 1024));
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

ProfileDocument::Line ProfileDocument::line(int index, const QTextCodec* codec) const
{
    return {index + 1, m_lines.text(index, codec, longestText),
            readingOf(m_lines.narrowMark(index)), readingOf(m_lines.wideMark(index)),
            m_lines.form().isUtf8(index)};
}

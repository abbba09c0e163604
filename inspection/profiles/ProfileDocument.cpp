#include "inspection/profiles/ProfileDocument.h"

#include "inspection/profiles/ProfileBytes.h"
#include "platform/profiles/WideProfile.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

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
    return {};
}

QByteArray ProfileDocument::bytesOf(const QString& path)
{
    return ProfileBytes::of(path).value_or(QByteArray());
}

QString ProfileDocument::restriction() const
{
    if (m_lines.hasMarks())
        return {};
    QStringList sentences = {tr("The file is too large for more than its lines.")};
    if (m_lines.count() == FileLines::mostLines)
        sentences << tr("They are the first %1.").arg(QLocale().toString(m_lines.count()));
    if (m_size > WideProfile::largestFile)
        sentences << tr("The wide family cannot read it: it answers with the default.");
    if (m_size > NarrowProfileFile::largestText)
        sentences << tr("The narrow family reads it, but cannot write to it.");
    return sentences.join(QLatin1Char(' '));
}

ProfileDocument::ProfileDocument(const QString& path)
    : m_path(path),
      m_exists(QFileInfo::exists(path)),
      m_isLarge(QFileInfo(path).size() > largeFile),
      m_size(QFileInfo(path).size())
{
}

ProfileDocument::Line ProfileDocument::line(int index, const QTextCodec* codec) const
{
    return {index + 1, m_lines.text(index, codec, longestText),
            readingOf(m_lines.narrowMark(index)), readingOf(m_lines.wideMark(index)),
            m_lines.form().isUtf8(index)};
}

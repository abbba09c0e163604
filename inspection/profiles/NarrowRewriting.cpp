#include "inspection/profiles/NarrowRewriting.h"

#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowProfile.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/NarrowScanner.h"

#include <QFile>
#include <QLocale>

namespace {

constexpr QChar lineFeed = QLatin1Char('\n');

bool isKept(LineState state)
{
    return state == LineState::Header || state == LineState::Entry ||
           state == LineState::Unreachable;
}

// A line that is kept, as it is written.
QString normalised(const NarrowScanner& line)
{
    if (line.isHeader())
        return line.line().toString();
    return line.key().toString() + QLatin1Char('=') + line.value().toString();
}

} // namespace

NarrowRewriting::NarrowRewriting(const QString& path)
{
    NarrowProfileFile decoded(path);
    QFile raw(path);
    if (!decoded.open(QIODevice::ReadOnly) || !raw.open(QIODevice::ReadOnly))
        return;
    const QString text = decoded.text();
    compare(text);
    compareBytes(raw.readAll(), text);
}

void NarrowRewriting::compare(const QString& text)
{
    const std::vector<LineReading> readings = NarrowLines(text).readings();
    auto reading = readings.begin();
    QString kept;
    for (NarrowScanner line(text); line.next(); ++reading) {
        m_blankLines += reading->state == LineState::Blank ? 1 : 0;
        if (!isKept(reading->state))
            continue;
        const QString written = normalised(line);
        m_normalises = m_normalises || line.line() != written;
        kept += written + lineFeed;
    }
    m_reorders = kept != NarrowProfile(text).toText();
}

void NarrowRewriting::compareBytes(const QByteArray& bytes, const QString& text)
{
    const QByteArray mark = QByteArrayLiteral("\xef\xbb\xbf");
    QByteArray plain = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
    plain.replace('\r', QByteArray());
    m_recodes = plain != text.toUtf8();
    const bool endsOpen = !text.isEmpty() && !text.endsWith(lineFeed);
    m_normalises = m_normalises || endsOpen || (!m_recodes && plain != bytes);
}

QString NarrowRewriting::changes() const
{
    QStringList sentences;
    if (m_blankLines > 0)
        sentences << tr("Blank lines lost: %1.").arg(QLocale().toString(m_blankLines));
    if (m_reorders)
        sentences << tr("The order of sections and keys changes.");
    if (m_normalises)
        sentences << tr("Spaces and line ends are normalised.");
    if (m_recodes)
        sentences << tr("The encoding becomes UTF-8.");
    return sentences.join(QLatin1Char(' '));
}

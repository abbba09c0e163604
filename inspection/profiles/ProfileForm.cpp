#include "inspection/profiles/ProfileForm.h"

#include "inspection/profiles/ByteLines.h"
#include "inspection/profiles/ReadableLine.h"

#include <QLocale>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>

namespace {

constexpr int utf8Mib = 106; // the number that is registered for UTF-8
constexpr char utf8Mark[] = "\xef\xbb\xbf";

// A line in UTF-8, or in what is not UTF-8 although it should be, with its end.
QByteArray plainLine(const ByteLines& lines, int number)
{
    const std::string_view bytes = lines.at(number);
    if (lines.unit() == ByteLines::Unit::Byte)
        return QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size()));
    const ReadableLine line(lines, number);
    switch (line.end()) {
    case ReadableLine::End::None: return line.textWithoutMark().toUtf8();
    case ReadableLine::End::LineFeed: return line.textWithoutMark().toUtf8() + '\n';
    case ReadableLine::End::CarriageReturnLineFeed: break;
    }
    return line.textWithoutMark().toUtf8() + "\r\n";
}

} // namespace

ProfileForm::ProfileForm(const QByteArray& beginning)
    : m_codec(QTextCodec::codecForUtfText(beginning, QTextCodec::codecForMib(utf8Mib))),
      m_hasMark(m_codec->mibEnum() != utf8Mib || beginning.startsWith(utf8Mark))
{
}

ProfileForm ProfileForm::of(const ByteLines& lines)
{
    ProfileForm form(lines.bytes());
    for (int line = 0; line < lines.count(); ++line)
        form.addLine(plainLine(lines, line));
    return form;
}

bool ProfileForm::isUtf8() const
{
    return !m_codec || m_codec->mibEnum() == utf8Mib;
}

void ProfileForm::addLine(const QByteArray& line)
{
    const bool hasFeed = line.endsWith('\n');
    const bool hasReturn = line.endsWith("\r\n");
    m_returnsWithFeeds += hasReturn ? 1 : 0;
    m_lineFeeds += hasFeed && !hasReturn ? 1 : 0;
    m_returns += line.count('\r') - (hasReturn ? 1 : 0);
    if (!ReadableLine::isUtf8({line.constData(), static_cast<std::size_t>(line.size())}))
        m_otherLines.push_back(m_lines);
    ++m_lines;
}

bool ProfileForm::isUtf8(int line) const
{
    return !std::binary_search(m_otherLines.begin(), m_otherLines.end(), line);
}

QString ProfileForm::text() const
{
    return tr("Encoding: %1. Byte order mark: %2. Line ends: %3.")
        .arg(encodingText(), m_hasMark ? tr("yes") : tr("no"), lineEndsText());
}

QString ProfileForm::encodingText() const
{
    QString name = m_codec ? QString::fromLatin1(m_codec->name()) : QStringLiteral("UTF-8");
    if (m_otherLines.empty())
        return name;
    return tr("not UTF-8 (lines: %1, the first is %2)")
        .arg(QLocale().toString(qulonglong{m_otherLines.size()}),
             QLocale().toString(m_otherLines.front() + 1));
}

QString ProfileForm::lineEndsText() const
{
    QStringList kinds;
    const auto add = [&kinds](const char* name, int count) {
        if (count > 0)
            kinds << QLatin1String(name) + QLatin1Char(' ') + QLocale().toString(count);
    };
    add("LF", m_lineFeeds);
    add("CRLF", m_returnsWithFeeds);
    add("CR", m_returns);
    if (kinds.isEmpty())
        return tr("none");
    const QString all = kinds.join(QStringLiteral(", "));
    return kinds.size() > 1 ? tr("mixed, %1").arg(all) : all;
}

QStringList ProfileForm::changesTo(const ProfileForm& other) const
{
    QStringList sentences;
    if (m_lines == 0 || other.m_lines == 0)
        return sentences;
    if (encodingText() != other.encodingText())
        sentences
            << tr("The encoding changes: %1, then %2.").arg(encodingText(), other.encodingText());
    if (m_hasMark && !other.m_hasMark)
        sentences << tr("The byte order mark goes.");
    if (!m_hasMark && other.m_hasMark)
        sentences << tr("A byte order mark is added.");
    if (!hasKindsOfEndsOf(other))
        sentences
            << tr("The line ends change: %1, then %2.").arg(lineEndsText(), other.lineEndsText());
    if (isOpen() && !other.isOpen())
        sentences << tr("The last line gets a line end.");
    return sentences;
}

// However many lines there are. A first line end where there was none is told apart.
bool ProfileForm::hasKindsOfEndsOf(const ProfileForm& other) const
{
    const bool hasNone = m_lineFeeds + m_returnsWithFeeds + m_returns == 0;
    return hasNone || ((m_lineFeeds > 0) == (other.m_lineFeeds > 0) &&
                       (m_returnsWithFeeds > 0) == (other.m_returnsWithFeeds > 0) &&
                       (m_returns > 0) == (other.m_returns > 0));
}

bool ProfileForm::isOpen() const
{
    return m_lineFeeds + m_returnsWithFeeds < m_lines;
}

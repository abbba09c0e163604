#include "inspection/registry/RegistrySearchJob.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QLocale>

#include <tuple>

namespace {

bool isPartOfWord(const QString& text, int at)
{
    return at >= 0 && at < text.size() &&
           (text.at(at).isLetterOrNumber() || text.at(at) == QLatin1Char('_'));
}

} // namespace

bool RegistrySearchJob::Query::operator==(const Query& other) const
{
    return std::tie(text, inKeys, inNames, inData, mindsCase, wholeWords, isPattern) ==
           std::tie(other.text, other.inKeys, other.inNames, other.inData, other.mindsCase,
                    other.wholeWords, other.isPattern);
}

RegistrySearchJob::RegistrySearchJob(const Query& query, const QString& path, std::size_t most)
    : m_query(query),
      m_digits(query.text.toLower().toLatin1()),
      m_pattern(query.isPattern ? query.text : QString(),
                query.mindsCase ? QRegularExpression::UseUnicodePropertiesOption
                                : QRegularExpression::UseUnicodePropertiesOption |
                                      QRegularExpression::CaseInsensitiveOption),
      m_most(most),
      m_walk(path)
{
}

bool RegistrySearchJob::step()
{
    if (isFull())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: lookAtKey(); return true;
    case RegistryWalk::Step::Value: lookAtValue(); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

QString RegistrySearchJob::progress() const
{
    const QLocale locale;
    return tr("Values: %1. Found: %2.")
        .arg(locale.toString(m_walk.values()),
             locale.toString(static_cast<qulonglong>(m_hits.size())));
}

void RegistrySearchJob::lookAtKey()
{
    if (m_query.inKeys && matches(RegistryPath::name(m_walk.path())))
        m_hits.push_back({m_walk.path(), {}, {}});
}

bool RegistrySearchJob::matchesPattern(const QString& text) const
{
    QRegularExpressionMatchIterator found = m_pattern.globalMatch(text);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (!m_query.wholeWords || (!isPartOfWord(text, match.capturedStart() - 1) &&
                                    !isPartOfWord(text, match.capturedEnd())))
            return true;
    }
    return false;
}

bool RegistrySearchJob::matches(const QString& text) const
{
    if (m_query.isPattern)
        return matchesPattern(text);
    const auto sensitivity = m_query.mindsCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int at = text.indexOf(m_query.text, 0, sensitivity);
    while (m_query.wholeWords && at >= 0 &&
           (isPartOfWord(text, at - 1) || isPartOfWord(text, at + m_query.text.size())))
        at = text.indexOf(m_query.text, at + 1, sensitivity);
    return at >= 0;
}

bool RegistrySearchJob::matches(const RegistryReading& reading) const
{
    switch (reading.type) {
    case REG_SZ: return matches(registryText(reading.data));
    case REG_BINARY: return matchesBytes(reading.data);
    default: return matches(RegistryFormat::data(reading.type, reading.data));
    }
}

// Without blanks, digits that begin in the middle of a byte are no match.
bool RegistrySearchJob::matchesBytes(const QByteArray& data) const
{
    if (m_query.isPattern)
        return matchesPattern(QString::fromLatin1(data.toHex(' ')));
    if (data.toHex(' ').contains(m_digits))
        return true;
    const QByteArray digits = data.toHex();
    int at = digits.indexOf(m_digits);
    while (at >= 0 && at % 2 != 0)
        at = digits.indexOf(m_digits, at + 1);
    return at >= 0;
}

void RegistrySearchJob::lookAtValue()
{
    const RegistryReading reading = m_walk.path().isEmpty()
                                        ? readAtRegistryRoot(m_walk.key(), m_walk.name())
                                        : m_walk.key().read(m_walk.name());
    const QString raw = reading.readable ? QString() : rawText();
    const bool found = (m_query.inNames && matches(m_walk.name())) ||
                       (m_query.inData && (reading.readable ? matches(reading) : matches(raw)));
    if (!found)
        return;
    m_hits.push_back({m_walk.path(), m_walk.name(),
                      reading.readable ? RegistryFormat::data(reading.type, reading.data)
                                       : tr("unreadable: %1").arg(raw)});
}

QString RegistrySearchJob::rawText() const
{
    return rawRegistryText(rawRegistryEntry(RegistryPath::join(m_walk.path(), m_walk.name())));
}

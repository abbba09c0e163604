#include "inspection/registry/StoredText.h"

#include <algorithm>

namespace {

constexpr int qwordTag = 2;
constexpr int binaryTag = 4;
constexpr int textTag = 5;

bool isHexDigit(QChar c)
{
    const QChar lower = c.toLower();
    return c.isDigit() || (lower >= QLatin1Char('a') && lower <= QLatin1Char('f'));
}

} // namespace

StoredText::StoredText(const QVariant& entry)
    : m_entry(entry), m_text(entry.toString()), m_dollar(m_text.indexOf(QLatin1Char('$')))
{
    m_tag = m_text.leftRef(qMax(0, m_dollar)).toInt(&m_tagIsNumber);
}

QString StoredText::whyUnreadable() const
{
    if (m_entry.isNull())
        return tr("No value: the mark of a key that was created here");
    if (m_entry.type() == QVariant::StringList)
        return tr("A list: the file has a comma without quotes");
    if (!hasTag())
        return tr("No type tag before a \"$\"");
    if (m_tag < 0 || m_tag == 3 || m_tag > textTag)
        return tr("Tag %1 is refused").arg(m_tag);
    return tr("Not found under this name");
}

QString StoredText::warning() const
{
    if (!hasTag())
        return QString();
    if (!m_tagIsNumber)
        return tr("The tag is no number and counts as 0");
    if (m_tag <= qwordTag)
        return numberWarning();
    return m_tag == binaryTag ? hexWarning() : QString();
}

QString StoredText::numberWarning() const
{
    const QString payload = m_text.mid(m_dollar + 1);
    bool fits = false;
    if (m_tag == qwordTag)
        payload.toLongLong(&fits);
    else
        payload.toInt(&fits);
    return fits ? QString() : tr("Bad number: \"%1\" is read as 0").arg(payload);
}

QString StoredText::hexWarning() const
{
    const QString payload = m_text.mid(m_dollar + 1);
    if (!std::all_of(payload.cbegin(), payload.cend(), isHexDigit))
        return tr("Bad digits: what is not hexadecimal is skipped");
    return payload.size() % 2 == 0 ? QString() : tr("An odd number of hexadecimal digits");
}

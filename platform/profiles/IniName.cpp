#include "platform/profiles/IniName.h"

namespace {

// The code unit of the escape at `at`, or "%" where there is none. Moves `at` to its last byte.
QChar unescapedUnit(const QByteArray& bytes, int& at)
{
    const bool isWide = at + 1 < bytes.size() && bytes.at(at + 1) == 'U';
    const int first = at + (isWide ? 2 : 1);
    const int count = isWide ? 4 : 2;
    bool isNumber = false;
    // Signs, spaces and "0x" are taken too. Intended: QSettings converts the digits in this way.
    const int unit =
        first + count <= bytes.size() ? bytes.mid(first, count).toInt(&isNumber, 16) : 0;
    if (!isNumber)
        return QLatin1Char('%');
    at = first + count - 1;
    return QChar(static_cast<ushort>(unit));
}

} // namespace

QString IniName::unescaped(const QByteArray& bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (int at = 0; at < bytes.size(); ++at) {
        switch (bytes.at(at)) {
        case '\\': text += QLatin1Char('/'); break;
        case '%': text += unescapedUnit(bytes, at); break;
        default: text += QLatin1Char(bytes.at(at));
        }
    }
    return text;
}

QString IniName::sectionPrefix(const QByteArray& header)
{
    const int end = header.indexOf(']');
    const QByteArray name = header.mid(1, end < 0 ? -1 : end - 1).trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0)
        return {};
    // The group of that name, with its letters as they stand.
    if (name.compare("%general", Qt::CaseInsensitive) == 0)
        return QString::fromLatin1(name.mid(1)) + QLatin1Char('/');
    return unescaped(name) + QLatin1Char('/');
}

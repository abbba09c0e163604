#include "regfile/RegFileText.h"

#include <QtEndian>

namespace {

// -1 for what is no hexadecimal digit.
int hexDigit(QChar c)
{
    const int lower = c.unicode() | 0x20;
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
        return c.unicode() - '0';
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// One byte of a list, character by character: a list may have millions of them.
class HexByte
{
public:
    // False where `c` cannot belong to a byte, or makes it too long.
    bool add(QChar c)
    {
        if (c.isSpace()) {
            m_ended = m_digits > 0;
            return true;
        }
        const int digit = hexDigit(c);
        m_value = m_value * 16 + digit;
        return digit >= 0 && !m_ended && ++m_digits <= 2;
    }

    // False where there is none.
    bool moveTo(QByteArray& bytes)
    {
        if (m_digits == 0)
            return false;
        bytes.append(static_cast<char>(m_value));
        *this = {};
        return true;
    }

private:
    int m_value = 0;
    int m_digits = 0;
    bool m_ended = false; // by a blank
};

} // namespace

QString quoteRegText(const QString& text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    quoted.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

bool unquoteRegText(const QString& line, int& position, QString& text)
{
    for (int i = position; i < line.size(); ++i) {
        QChar c = line.at(i);
        if (c == QLatin1Char('"')) {
            position = i + 1;
            return true;
        }
        if (c == QLatin1Char('\\') && i + 1 < line.size())
            c = line.at(++i);
        text += c;
    }
    return false;
}

bool parseHexBytes(const QString& list, QByteArray& bytes)
{
    bytes.clear();
    if (list.trimmed().isEmpty())
        return true;
    bytes.reserve(list.size() / 3 + 1);
    HexByte byte;
    for (const QChar c : list) {
        if (c == QLatin1Char(',')) {
            if (!byte.moveTo(bytes))
                return false;
        } else if (!byte.add(c)) {
            return false;
        }
    }
    return byte.moveTo(bytes);
}

QByteArray utf16Of(const QString& text)
{
    QByteArray bytes(text.size() * static_cast<int>(sizeof(ushort)), Qt::Uninitialized);
    qToLittleEndian<ushort>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

// A byte order mark is a character of the text like any other.
QString textOfUtf16(const QByteArray& bytes)
{
    QString text(bytes.size() / static_cast<int>(sizeof(ushort)), Qt::Uninitialized);
    qFromLittleEndian<ushort>(bytes.constData(), text.size(), text.data());
    return text.left(text.indexOf(QChar::Null));
}

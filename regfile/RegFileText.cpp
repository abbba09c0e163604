#include "regfile/RegFileText.h"

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

QByteArray littleEndian(quint64 value, int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes.append(static_cast<char>((value >> (8 * i)) & 0xFF));
    return bytes;
}

QByteArray utf16Of(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size() * 2);
    for (const QChar c : text)
        bytes.append(static_cast<char>(c.cell())).append(static_cast<char>(c.row()));
    return bytes;
}

QString textOfUtf16(const QByteArray& bytes)
{
    QString text;
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes.at(i));
        const auto high = static_cast<unsigned char>(bytes.at(i + 1));
        const QChar unit(low, high);
        if (unit.isNull())
            break;
        text += unit;
    }
    return text;
}

#include "app/regfile/RegFileText.h"

#include <QVector>

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
    const auto parts = list.splitRef(QLatin1Char(','));
    bytes.reserve(parts.size());
    for (const QStringRef& part : parts) {
        const QStringRef digits = part.trimmed();
        bool valid = false;
        const unsigned int byte = digits.toUInt(&valid, 16);
        if (!valid || digits.size() > 2 || !digits.at(0).isLetterOrNumber())
            return false;
        bytes.append(static_cast<char>(byte));
    }
    return true;
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

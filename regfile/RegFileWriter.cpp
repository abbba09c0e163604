#include "regfile/RegFileWriter.h"

#include "platform/WindowsTypes.h"
#include "regfile/RegFileText.h"

#include <QIODevice>

namespace {

constexpr int longestLine = 80;
constexpr int byteWidth = 3; // "00,"

// An empty name is the default value.
QString assignment(const QString& name)
{
    return (name.isEmpty() ? QStringLiteral("@") : quoteRegText(name)) + QLatin1Char('=');
}

QString hexPrefix(unsigned int type)
{
    return type == REG_BINARY ? QStringLiteral("hex:")
                              : QStringLiteral("hex(%1):").arg(QString::number(type, 16));
}

bool hasLineEnd(const QString& text)
{
    return text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'));
}

} // namespace

RegFileWriter::RegFileWriter(QIODevice& device, Encoding encoding)
    : m_device(device), m_encoding(encoding), m_good(device.isWritable())
{
    if (m_encoding == Encoding::Utf16)
        write(QByteArray("\xFF\xFE"));
    line(regFileHeader);
}

void RegFileWriter::line(const QString& text)
{
    const QString ended = text + QStringLiteral("\r\n");
    const QByteArray encoded = m_encoding == Encoding::Utf16 ? utf16Of(ended) : ended.toUtf8();
    write(encoded);
}

void RegFileWriter::write(const QByteArray& encoded)
{
    m_good = m_good && m_device.write(encoded) == encoded.size();
}

void RegFileWriter::key(const QString& path)
{
    line(QString());
    line(QLatin1Char('[') + path + QLatin1Char(']'));
}

// A line end within quotes: editors change it, and not every reader takes it.
void RegFileWriter::text(const QString& name, const QString& value)
{
    if (hasLineEnd(value))
        bytes(name, REG_SZ, utf16Of(value + QChar::Null));
    else
        line(assignment(name) + quoteRegText(value));
}

void RegFileWriter::dword(const QString& name, quint32 value)
{
    line(assignment(name) + QStringLiteral("dword:%1").arg(value, 8, 16, QLatin1Char('0')));
}

void RegFileWriter::bytes(const QString& name, unsigned int type, const QByteArray& data)
{
    QString current = assignment(name) + hexPrefix(type);
    for (int i = 0; i < data.size(); ++i) {
        if (current.size() + byteWidth >= longestLine && i > 0) {
            line(current + QLatin1Char('\\'));
            current = QStringLiteral("  ");
        }
        current += QString::fromLatin1(data.mid(i, 1).toHex());
        if (i + 1 < data.size())
            current += QLatin1Char(',');
    }
    line(current);
}

void RegFileWriter::comment(const QString& text)
{
    QString flat = text;
    flat.replace(QLatin1Char('\n'), QLatin1Char(' ')).remove(QLatin1Char('\r'));
    line(QStringLiteral("; ") + flat);
}

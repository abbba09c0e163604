#include "inspection/registry/ValueInput.h"

#include "inspection/registry/RegistryKey.h"
#include "regfile/RegFileText.h"

namespace {

constexpr quint64 largestDword = 0xFFFFFFFF;
constexpr quint64 largestSignedDword = 0x7FFFFFFF;
constexpr quint64 largestByte = 0xFF;

// Zeros in front are digits, not the sign of octal numbers.
quint64 parsed(const QString& text, bool* valid)
{
    const QString digits = text.trimmed();
    if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        return digits.midRef(2).toULongLong(valid, 16);
    return digits.toULongLong(valid, 10);
}

bool hasSeparator(const QString& name)
{
    return name.contains(QLatin1Char('\\')) || name.contains(QLatin1Char('/'));
}

} // namespace

ValueInput::ValueInput(unsigned int type, const QString& text)
{
    switch (type) {
    case REG_SZ: m_data = registryTextData(text); break;
    case REG_DWORD:
    case REG_QWORD: readNumber(type, text); break;
    default: readBytes(text); break;
    }
}

void ValueInput::readNumber(unsigned int type, const QString& text)
{
    bool valid = false;
    const quint64 value = parsed(text, &valid);
    if (!valid) {
        m_problem = tr("Type a whole number, such as 255 or 0xff.");
        return;
    }
    if (type == REG_DWORD && value > largestDword) {
        m_problem = tr("The largest DWORD is 4294967295 (0xffffffff).");
        return;
    }
    m_data = littleEndian(value, type == REG_DWORD ? 4 : 8);
    m_warning = numberWarning(type, value);
}

QString ValueInput::numberWarning(unsigned int type, quint64 value)
{
    if (type == REG_QWORD && value > largestByte)
        return tr("Only the lowest byte of a QWORD is kept: %1 will be read as %2.")
            .arg(value)
            .arg(value & largestByte);
    if (type == REG_DWORD && value > largestSignedDword)
        return tr("A DWORD above 2147483647 (0x7fffffff) will be read as 0.");
    return QString();
}

void ValueInput::readBytes(const QString& text)
{
    QString digits = text;
    for (const char separator : {' ', ',', '\n', '\t'})
        digits.remove(QLatin1Char(separator));
    m_data = QByteArray::fromHex(digits.toLatin1());
    if (digits.isEmpty())
        m_problem = tr("Binary data needs at least one byte.");
    else if (2 * m_data.size() != digits.size())
        m_problem = tr("Type pairs of hexadecimal digits, such as 00 7f ff.");
}

QString ValueInput::nameProblem(const QString& name)
{
    if (name.isEmpty())
        return tr("A value needs a name.");
    if (hasSeparator(name))
        return tr("\"\\\" and \"/\" in the name would put the value into a sub-key.");
    return QString();
}

QString ValueInput::keyNameProblem(const QString& name)
{
    if (name.isEmpty())
        return tr("A key needs a name.");
    if (hasSeparator(name))
        return tr("\"\\\" and \"/\" separate keys. Create one key at a time.");
    return QString();
}

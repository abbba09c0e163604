#include "inspection/registry/ValueInput.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "inspection/registry/UnkeptName.h"
#include "platform/registry/ValueChange.h"

#include <QtEndian>

namespace {

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
    case REG_DWORD: readNumber(text, sizeof(quint32)); break;
    case REG_QWORD: readNumber(text, sizeof(quint64)); break;
    default: readBytes(text); break;
    }
    if (m_problem.isEmpty())
        check(type);
}

// What is typed well may still be refused or altered.
void ValueInput::check(unsigned int type)
{
    const ValueChange change(type, m_data);
    const bool refused = change.outcome() == ValueChange::Outcome::Refused;
    (refused ? m_problem : m_warning) = change.remarks().join(QLatin1Char(' '));
}

void ValueInput::readNumber(const QString& text, int size)
{
    bool valid = false;
    const quint64 value = parsed(text, &valid);
    m_data.resize(sizeof value);
    qToLittleEndian(value, m_data.data());
    m_data.truncate(size);
    if (!valid)
        m_problem = tr("Type a whole number, such as 255 or 0xff.");
    else if (RegistryFormat::number(m_data) != value)
        m_problem = tr("The largest DWORD is 4294967295 (0xffffffff).");
}

void ValueInput::readBytes(const QString& text)
{
    QString digits = text;
    for (const char separator : {' ', ',', '\n', '\t'})
        digits.remove(QLatin1Char(separator));
    m_data = QByteArray::fromHex(digits.toLatin1());
    if (2 * m_data.size() != digits.size())
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

// An entry that no host library can read takes a name too: writing would replace it.
QString ValueInput::newNameProblem(const QString& path, const QString& name)
{
    QString problem = nameProblem(name);
    if (problem.isEmpty())
        problem = unkeptValueText(path, name);
    if (!problem.isEmpty() || rawRegistryEntry(StoreEntry::ofValue(path, name)).isNull())
        return problem;
    return tr("%1 has a value \"%2\" already.").arg(RegistryPath::shown(path), name);
}

QString ValueInput::keyNameProblem(const QString& name)
{
    if (name.isEmpty())
        return tr("A key needs a name.");
    if (hasSeparator(name))
        return tr("\"\\\" and \"/\" separate keys. Create one key at a time.");
    return QString();
}

QString ValueInput::newKeyNameProblem(const QString& parent, const QString& name)
{
    const QString problem = keyNameProblem(name);
    return problem.isEmpty() ? unkeptKeyText(parent, name) : problem;
}

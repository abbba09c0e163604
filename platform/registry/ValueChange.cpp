#include "platform/registry/ValueChange.h"

#include "platform/WindowsTypes.h"
#include "platform/registry/TypeName.h"

#include <QVariant>
#include <QtEndian>

namespace {

constexpr int terminatorSize = sizeof(wchar_t);

// True where the terminator of a text of `size` bytes is the end of the data. Data may be large: it
// is copied no more than it must be.
bool isTerminated(const QByteArray& data, int size)
{
    return data.size() == size + terminatorSize && size % terminatorSize == 0 &&
           data.endsWith(QByteArray(terminatorSize, '\0'));
}

// A text is encoded up to its terminator, which the data may lack. No data is none at all.
EncodedValue encoded(unsigned int type, const QByteArray& data)
{
    const bool isSafe = isTerminated(data, data.size() - terminatorSize);
    const QByteArray safe = isSafe ? data : data + QByteArray(terminatorSize, '\0');
    return EncodedValue(
        type, data.isEmpty() ? nullptr : reinterpret_cast<const unsigned char*>(safe.constData()),
        static_cast<unsigned int>(data.size()));
}

// Of bytes in little-endian order; those beyond the eighth do not count.
quint64 numberOf(const QByteArray& data)
{
    const QByteArray bytes = data + QByteArray(sizeof(quint64), '\0');
    return qFromLittleEndian<quint64>(bytes.constData());
}

} // namespace

ValueChange::ValueChange(unsigned int type, const QByteArray& data)
    : m_type(type), m_data(data), m_encoded(encoded(type, data))
{
    if (m_encoded.isAccepted())
        m_read.emplace(m_encoded.text());
}

ValueChange::Outcome ValueChange::outcome() const
{
    if (!m_read)
        return Outcome::Refused;
    const bool isKept = m_read->type() == m_type && comesBackWhole(m_read->data());
    return isKept ? Outcome::Kept : Outcome::Altered;
}

bool ValueChange::comesBackWhole(const QByteArray& read) const
{
    return m_read->type() == REG_SZ ? isTerminated(m_data, read.size()) && m_data.startsWith(read)
                                    : m_data == read;
}

QStringList ValueChange::remarks() const
{
    if (!m_read)
        return {m_encoded.explanation()};
    QStringList remarks;
    if (m_read->type() != m_type)
        remarks.append(
            tr("%1 becomes %2.").arg(registryTypeName(m_type), registryTypeName(m_read->type())));
    const QByteArray read = m_read->data();
    if (!comesBackWhole(read))
        remarks.append(alteration(read));
    return remarks;
}

QString ValueChange::alteration(const QByteArray& read) const
{
    if (m_read->type() == REG_SZ)
        return m_data.startsWith(read)
                   ? tr("The text is kept up to its first NUL character.")
                   : tr("Some of the text's characters will be read as others.");
    if (m_read->remark() == StoredValue::Remark::BadNumber)
        return tr("%1 will be read as 0: it does not fit a signed number.").arg(numberOf(m_data));
    if (read.size() != m_data.size())
        return tr("The number does not have %1 bytes: its first byte alone is kept.")
            .arg(read.size());
    return tr("Only the lowest byte of a QWORD is kept: %1 will be read as %2.")
        .arg(numberOf(m_data))
        .arg(numberOf(read));
}

#include "platform/registry/StoredValue.h"

#include <QVariant>

#include <cstring>

namespace {

struct Bytes
{
    const void* first;
    std::size_t size;
};

Bytes bytesOf(const qint32& number)
{
    return {&number, sizeof number};
}

Bytes bytesOf(const qint64& number)
{
    return {&number, sizeof number};
}

Bytes bytesOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

Bytes bytesOf(const QVector<uint>& characters)
{
    return {characters.constData(), static_cast<std::size_t>(characters.size()) * sizeof(uint)};
}

} // namespace

// A host library waits for it, so that nothing is done here for the explanation alone.
StoredValue::StoredValue(const QVariant& entry)
    : m_isNull(entry.isNull()), m_text(m_isNull ? QString() : entry.toString())
{
    if (m_isNull)
        return;
    m_separator = m_text.indexOf(StoredTag::separator);
    bool isNumber = false;
    const int number = m_separator > 0 ? tagText().toInt(&isNumber) : 0;
    m_tag = isNumber ? StoredTag::ofNumber(number) : nullptr;
    if (m_tag)
        m_tag->decode(payload(), m_data);
    else
        m_isList = entry.type() == QVariant::StringList;
}

QByteArray StoredValue::data() const
{
    const auto copied = [](const auto& content) {
        const Bytes bytes = bytesOf(content);
        return QByteArray(static_cast<const char*>(bytes.first), static_cast<int>(bytes.size));
    };
    return std::visit(copied, m_data);
}

bool StoredValue::copyTo(unsigned char* data, unsigned int* size) const
{
    const bool isMeasured = size && (data || m_tag->measuresWithoutBuffer);
    const std::size_t spare = m_tag->wantsTerminator ? 1 : 0;
    const auto copy = [&](const auto& content) {
        const Bytes bytes = bytesOf(content);
        if (isMeasured && *size < bytes.size + spare)
            return false;
        if (data && bytes.size > 0)
            std::memcpy(data, bytes.first, bytes.size);
        if (size)
            *size = static_cast<unsigned int>(bytes.size);
        return true;
    };
    return std::visit(copy, m_data);
}

StoredValue::Remark StoredValue::remark() const
{
    if (!m_tag)
        return refusal();
    switch (m_tag->fault(payload())) {
    case PayloadFault::None: break;
    case PayloadFault::BadNumber: return Remark::BadNumber;
    case PayloadFault::BadDigits: return Remark::BadDigits;
    case PayloadFault::MissingDigit: return Remark::MissingDigit;
    }
    return Remark::None;
}

StoredValue::Remark StoredValue::refusal() const
{
    if (m_isNull)
        return Remark::NoValue;
    if (m_isList)
        return Remark::List;
    if (m_separator <= 0)
        return Remark::NoTag;
    bool isNumber = false;
    tagText().toInt(&isNumber);
    return isNumber ? Remark::UnknownTag : Remark::TagIsNoNumber;
}

QString StoredValue::explanation() const
{
    switch (remark()) {
    case Remark::None: break;
    case Remark::BadNumber: return tr("Bad number: \"%1\" is read as 0").arg(payload().toString());
    case Remark::BadDigits: return tr("Bad digits: what is not hexadecimal is skipped");
    case Remark::MissingDigit: return tr("An odd number of hexadecimal digits");
    case Remark::NoValue: return tr("No value: the mark of a key that was created here");
    case Remark::List: return tr("A list: the file has a comma without quotes");
    case Remark::NoTag: return tr("No type tag before a \"$\"");
    case Remark::TagIsNoNumber:
        return tr("Tag \"%1\" is refused: it is no number, or too large a one")
            .arg(tagText().toString());
    case Remark::UnknownTag: return tr("Tag %1 is refused").arg(tagText().toString());
    }
    return {};
}

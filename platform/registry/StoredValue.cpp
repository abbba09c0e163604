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

Bytes bytesOf(const StoredData& data)
{
    return std::visit([](const auto& content) { return bytesOf(content); }, data);
}

} // namespace

StoredValue::StoredValue(const QVariant& entry)
    : m_isNull(entry.isNull()),
      m_isList(entry.type() == QVariant::StringList),
      m_text(entry.toString()),
      m_separator(m_text.indexOf(QLatin1Char('$')))
{
    if (m_isNull || m_separator <= 0)
        return;
    bool isNumber = false;
    const int number = tagText().toInt(&isNumber);
    m_tag = isNumber ? StoredTag::ofNumber(number) : nullptr;
    if (m_tag)
        m_data = m_tag->decode(payload());
}

QByteArray StoredValue::data() const
{
    const Bytes bytes = bytesOf(m_data);
    return QByteArray(static_cast<const char*>(bytes.first), static_cast<int>(bytes.size));
}

bool StoredValue::copyTo(unsigned char* data, unsigned int* size) const
{
    const Bytes bytes = bytesOf(m_data);
    const bool isMeasured = size && (data || m_tag->measuresWithoutBuffer);
    if (isMeasured && *size < bytes.size + (m_tag->wantsTerminator ? 1 : 0))
        return false;
    if (data && bytes.size > 0)
        std::memcpy(data, bytes.first, bytes.size);
    if (size)
        *size = static_cast<unsigned int>(bytes.size);
    return true;
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

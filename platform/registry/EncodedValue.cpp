#include "platform/registry/EncodedValue.h"

#include "platform/registry/StoredTag.h"
#include "platform/registry/TypeName.h"

EncodedValue::EncodedValue(unsigned int type, const unsigned char* data, unsigned int size)
    : m_type(type)
{
    const StoredTag* tag = StoredTag::ofWrittenType(type);
    QString payload;
    m_isAccepted = data && tag && tag->encode(data, size, payload);
    if (m_isAccepted)
        m_text = QString::number(tag->number) + StoredTag::separator + payload;
}

EncodedValue::Refusal EncodedValue::refusal() const
{
    if (m_isAccepted)
        return Refusal::None;
    return StoredTag::ofWrittenType(m_type) ? Refusal::NoData : Refusal::UnwritableType;
}

QString EncodedValue::explanation() const
{
    switch (refusal()) {
    case Refusal::None: break;
    case Refusal::NoData: return tr("Data without a byte cannot be stored.");
    case Refusal::UnwritableType: return tr("%1 cannot be stored.").arg(registryTypeName(m_type));
    }
    return {};
}

// The conversions of registry values that are public: what is explained of a value is dropped.

#include "platform/PlatformRegisterManagerImp.h"
#include "platform/registry/EncodedValue.h"
#include "platform/registry/StoredValue.h"

#include <QVariant>

bool RegValueToQVar(QVariant& out, unsigned int type, const unsigned char* data, unsigned int size)
{
    const EncodedValue encoded(type, data, size);
    if (encoded.isAccepted())
        out = encoded.text();
    return encoded.isAccepted();
}

// The type is set before the size is looked at.
bool QVarToRegValue(QVariant& value, unsigned int* type, unsigned char* data, unsigned int* size)
{
    const StoredValue stored(value);
    if (!stored.isReadable())
        return false;
    if (type)
        *type = stored.type();
    return stored.copyTo(data, size);
}

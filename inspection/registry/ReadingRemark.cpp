#include "inspection/registry/ReadingRemark.h"

#include "platform/registry/StoredValue.h"

namespace {

struct ReadingRemark
{
    Q_DECLARE_TR_FUNCTIONS(ReadingRemark)
};

} // namespace

QString readingRemark(const RegistryReading& reading, const QVariant& entry)
{
    const StoredValue stored(entry);
    if (reading.readable == stored.isReadable())
        return stored.explanation();
    // A name with a "\" in it stands for another entry, which the service has read or missed.
    return reading.readable ? QString() : ReadingRemark::tr("Not found under this name");
}

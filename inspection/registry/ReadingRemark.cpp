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
    const bool isFound = reading.readable || !stored.isReadable();
    return isFound ? stored.explanation() : ReadingRemark::tr("Not found under this name");
}

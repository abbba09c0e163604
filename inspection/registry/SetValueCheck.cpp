#include "inspection/registry/SetValueCheck.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"

#include <QCoreApplication>

namespace {

struct SetValueCheck
{
    Q_DECLARE_TR_FUNCTIONS(SetValueCheck)
};

} // namespace

std::optional<QString> otherReading(const QString& path, const QString& name, unsigned int type,
                                    const QByteArray& written)
{
    const int terminator = type == REG_SZ ? static_cast<int>(sizeof(wchar_t)) : 0;
    const RegistryReading reading = RegistryKey(path).read(name);
    if (!reading.readable)
        return SetValueCheck::tr("nothing");
    if (reading.type == type && reading.data == written.left(written.size() - terminator))
        return std::nullopt;
    return RegistryFormat::data(reading.type, reading.data);
}

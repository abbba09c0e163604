#include "platform/registry/TypeName.h"

#include "platform/WindowsTypes.h"

namespace {

struct TypeName
{
    unsigned int type;
    const char* name;
};

constexpr TypeName typeNames[] = {
    {REG_NONE, "REG_NONE"},
    {REG_SZ, "REG_SZ"},
    {REG_EXPAND_SZ, "REG_EXPAND_SZ"},
    {REG_BINARY, "REG_BINARY"},
    {REG_DWORD, "REG_DWORD"},
    {REG_DWORD_BIG_ENDIAN, "REG_DWORD_BIG_ENDIAN"},
    {REG_LINK, "REG_LINK"},
    {REG_MULTI_SZ, "REG_MULTI_SZ"},
    {REG_RESOURCE_LIST, "REG_RESOURCE_LIST"},
    {REG_FULL_RESOURCE_DESCRIPTOR, "REG_FULL_RESOURCE_DESCRIPTOR"},
    {REG_RESOURCE_REQUIREMENTS_LIST, "REG_RESOURCE_REQUIREMENTS_LIST"},
    {REG_QWORD, "REG_QWORD"},
};

} // namespace

QString registryTypeName(unsigned int type)
{
    for (const TypeName& row : typeNames) {
        if (row.type == type)
            return QString::fromLatin1(row.name);
    }
    return QString::number(type);
}

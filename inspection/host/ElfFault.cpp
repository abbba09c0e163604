#include "inspection/host/ElfFault.h"

#include <QCoreApplication>

namespace {

struct HostFile
{
    Q_DECLARE_TR_FUNCTIONS(HostFile)
};

QString otherFileText(ElfFault fault)
{
    switch (fault) {
    case ElfFault::Script: return HostFile::tr("It is a script, not a library.");
    case ElfFault::LinkerScript:
        return HostFile::tr("It is a text for the linker, not the library that it stands for.");
    case ElfFault::WindowsLibrary:
        return HostFile::tr("It is a Windows program or library, which Linux cannot load.");
    case ElfFault::Archive:
        return HostFile::tr("It is a static library: it can be linked, but not loaded.");
    default: return HostFile::tr("It is no ELF file.");
    }
}

QString placeText(ElfFault fault)
{
    switch (fault) {
    case ElfFault::Missing: return HostFile::tr("There is no such file.");
    case ElfFault::Unreadable: return HostFile::tr("The file cannot be read.");
    case ElfFault::Folder: return HostFile::tr("It is a folder, not a file.");
    case ElfFault::NoRegularFile:
        return HostFile::tr("It is a pipe, a device or a socket, not a regular file.");
    default: return HostFile::tr("The file is empty.");
    }
}

} // namespace

QString elfFaultText(ElfFault fault)
{
    switch (fault) {
    case ElfFault::None: return QString();
    case ElfFault::Missing:
    case ElfFault::Unreadable:
    case ElfFault::Folder:
    case ElfFault::NoRegularFile:
    case ElfFault::Empty: return placeText(fault);
    case ElfFault::Truncated:
        return HostFile::tr("The file is cut off: parts that are to be loaded lie beyond its end.");
    case ElfFault::Damaged:
        return HostFile::tr("The file is damaged: its tables contradict themselves.");
    case ElfFault::NotDynamic: return HostFile::tr("It is an ELF file, but not a shared library.");
    default: return otherFileText(fault);
    }
}

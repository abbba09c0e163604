#pragma once

#include <QString>

/// Why a file cannot be read as a shared library.
enum class ElfFault
{
    None,
    Missing,
    Unreadable, ///< the system refuses to open or read it
    Folder,
    NoRegularFile, ///< a pipe, a device, a socket
    Empty,
    Script,
    LinkerScript, ///< text that stands in for a library when a program is linked
    WindowsLibrary,
    Archive, ///< a static library
    Unknown, ///< no ELF file, and nothing else that is known here
    Truncated,
    Damaged,    ///< tables that contradict themselves or lead out of the file
    NotDynamic, ///< an ELF file without what a dynamic loader needs
};

/// The fault in words, as a whole sentence; empty for None.
QString elfFaultText(ElfFault fault);

#pragma once

#include <QString>

/// For which machines an ELF file is made.
struct ElfIdentity
{
    int bits = 0; ///< 32 or 64; 0 where the file says something else
    bool isLittleEndian = true;
    quint16 machine = 0; ///< a number of elf.h, such as EM_AARCH64
    quint16 type = 0;    ///< a number of elf.h, such as ET_DYN
    quint8 system = 0;   ///< the ABI of the operating system, a number of elf.h

    /// Of the libraries that this process can load.
    static ElfIdentity ofThisProcess();

    /// True where the dynamic loader takes libraries of this identity for those of the other one.
    bool suits(const ElfIdentity& other) const;

    /// Such as "AArch64", or "machine 1234" for one without a name here.
    QString machineName() const;

    /// Such as "64-bit AArch64".
    QString text() const;
};

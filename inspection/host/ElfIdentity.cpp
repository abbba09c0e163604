#include "inspection/host/ElfIdentity.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <elf.h>

namespace {

struct ElfMachine
{
    Q_DECLARE_TR_FUNCTIONS(ElfMachine)
};

struct NamedMachine
{
    quint16 number;
    const char* name;
};

constexpr NamedMachine namedMachines[] = {
    {EM_386, "x86"},
    {EM_X86_64, "x86-64"},
    {EM_ARM, "ARM"},
    {EM_AARCH64, "AArch64"},
    {EM_RISCV, "RISC-V"},
    {EM_MIPS, "MIPS"},
    {EM_PPC, "PowerPC"},
    {EM_PPC64, "PowerPC 64"},
    {EM_S390, "S/390"},
    {EM_SPARC, "SPARC"},
    {EM_SPARCV9, "SPARC 9"},
    {EM_IA_64, "Itanium"},
    {EM_LOONGARCH, "LoongArch"},
};

#if defined(__aarch64__)
constexpr quint16 machineHere = EM_AARCH64;
#elif defined(__x86_64__)
constexpr quint16 machineHere = EM_X86_64;
#else
#error "The machine of this processor is to be named here."
#endif

} // namespace

ElfIdentity ElfIdentity::ofThisProcess()
{
    ElfIdentity identity;
    identity.bits = QSysInfo::WordSize;
    identity.isLittleEndian = QSysInfo::ByteOrder == QSysInfo::LittleEndian;
    identity.machine = machineHere;
    identity.type = ET_DYN;
    return identity;
}

bool ElfIdentity::suits(const ElfIdentity& other) const
{
    return bits == other.bits && isLittleEndian == other.isLittleEndian && machine == other.machine;
}

QString ElfIdentity::machineName() const
{
    for (const NamedMachine& known : namedMachines) {
        if (known.number == machine)
            return QLatin1String(known.name);
    }
    return ElfMachine::tr("machine %1").arg(machine);
}

QString ElfIdentity::text() const
{
    if (bits == 0)
        return machineName();
    const QString text = ElfMachine::tr("%1-bit %2").arg(bits).arg(machineName());
    return isLittleEndian ? text : ElfMachine::tr("%1, big-endian").arg(text);
}

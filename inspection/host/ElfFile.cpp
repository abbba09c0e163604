#include "inspection/host/ElfFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// No table of a library that works is as large; one that claims to be would only take memory.
constexpr quint64 largestTable = 1u << 30;

struct FileBeginning
{
    const char* text;
    ElfFault fault;
};

constexpr FileBeginning otherBeginnings[] = {
    {"#!", ElfFault::Script},
    {"MZ", ElfFault::WindowsLibrary},
    {"!<arch>", ElfFault::Archive},
    {"!<thin>", ElfFault::Archive},
    {"/* GNU ld script", ElfFault::LinkerScript},
    {"INPUT(", ElfFault::LinkerScript},
    {"INPUT (", ElfFault::LinkerScript},
    {"GROUP(", ElfFault::LinkerScript},
    {"GROUP (", ElfFault::LinkerScript},
};

ElfFault kindOfBeginning(const QByteArray& beginning)
{
    if (beginning.startsWith(QByteArray(ELFMAG, SELFMAG)))
        return beginning.size() < static_cast<int>(sizeof(Elf64_Ehdr)) ? ElfFault::Truncated
                                                                       : ElfFault::None;
    for (const FileBeginning& other : otherBeginnings) {
        if (beginning.startsWith(other.text))
            return other.fault;
    }
    return ElfFault::Unknown;
}

int bitsOf(unsigned char elfClass)
{
    if (elfClass == ELFCLASS64)
        return 64;
    return elfClass == ELFCLASS32 ? 32 : 0;
}

ElfFault kindOfPlace(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return ElfFault::Folder;
    if (!S_ISREG(status.st_mode))
        return ElfFault::NoRegularFile;
    return status.st_size == 0 ? ElfFault::Empty : ElfFault::None;
}

} // namespace

ElfFile::ElfFile(const QString& path) : m_fault(open(path))
{
    if (m_fault == ElfFault::None)
        m_fault = checkKind();
    if (m_fault == ElfFault::None)
        m_fault = readHeader();
}

ElfFile::~ElfFile()
{
    m_elf.reset();
    if (m_descriptor >= 0)
        close(m_descriptor);
}

ElfFault ElfFile::open(const QString& path)
{
    // What is no regular file is not opened: opening alone waits on some, and alters others.
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? ElfFault::Missing : ElfFault::Unreadable;
    const ElfFault kind = kindOfPlace(status);
    if (kind != ElfFault::None)
        return kind;
    // Another file may have taken its place since: hence no waiting, and the second look.
    m_descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0)
        return ElfFault::Unreadable;
    m_size = static_cast<quint64>(status.st_size);
    return kindOfPlace(status);
}

ElfFault ElfFile::checkKind()
{
    QByteArray beginning(static_cast<int>(sizeof(Elf64_Ehdr)), '\0');
    const ssize_t count =
        pread(m_descriptor, beginning.data(), static_cast<std::size_t>(beginning.size()), 0);
    if (count < 0)
        return ElfFault::Unreadable;
    beginning.truncate(static_cast<int>(count));
    return kindOfBeginning(beginning);
}

ElfFault ElfFile::readHeader()
{
    if (elf_version(EV_CURRENT) == EV_NONE)
        return ElfFault::Unreadable;
    // Reads what is asked for, instead of mapping the file: a file that gets shorter meanwhile
    // would end the process.
    m_elf.reset(elf_begin(m_descriptor, ELF_C_READ, nullptr));
    GElf_Ehdr header = {};
    if (!m_elf || !gelf_getehdr(m_elf.get(), &header))
        return ElfFault::Damaged;
    m_identity.bits = bitsOf(header.e_ident[EI_CLASS]);
    m_identity.isLittleEndian = header.e_ident[EI_DATA] != ELFDATA2MSB;
    m_identity.machine = header.e_machine;
    m_identity.type = header.e_type;
    m_identity.system = header.e_ident[EI_OSABI];
    if (m_identity.bits != 64 || !m_identity.isLittleEndian)
        return ElfFault::None;
    if (header.e_type == ET_REL || header.e_type == ET_CORE || header.e_phnum == 0)
        return ElfFault::NotDynamic;
    return readSegments();
}

ElfFault ElfFile::readSegments()
{
    std::size_t count = 0;
    if (elf_getphdrnum(m_elf.get(), &count) != 0 || count == 0)
        return ElfFault::Truncated;
    for (std::size_t i = 0; i < count; ++i) {
        GElf_Phdr segment = {};
        if (!gelf_getphdr(m_elf.get(), static_cast<int>(i), &segment))
            return ElfFault::Truncated;
        m_segments.append(segment);
        const bool isRead = segment.p_type == PT_LOAD || segment.p_type == PT_DYNAMIC;
        if (isRead && (segment.p_offset > m_size || segment.p_filesz > m_size - segment.p_offset))
            return ElfFault::Truncated;
    }
    return ElfFault::None;
}

quint64 ElfFile::sizeFrom(quint64 address) const
{
    for (const GElf_Phdr& segment : m_segments) {
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
            address - segment.p_vaddr < segment.p_filesz)
            return segment.p_filesz - (address - segment.p_vaddr);
    }
    return 0;
}

quint64 ElfFile::offsetOf(quint64 address) const
{
    for (const GElf_Phdr& segment : m_segments) {
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
            address - segment.p_vaddr < segment.p_filesz)
            return segment.p_offset + (address - segment.p_vaddr);
    }
    return 0;
}

Elf_Data* ElfFile::dataAt(quint64 address, quint64 size, Elf_Type type) const
{
    if (size == 0 || size > largestTable || size > sizeFrom(address))
        return nullptr;
    return elf_getdata_rawchunk(m_elf.get(), static_cast<std::int64_t>(offsetOf(address)), size,
                                type);
}

Elf_Data* ElfFile::dataFrom(quint64 address, Elf_Type type) const
{
    return dataAt(address, std::min(sizeFrom(address), largestTable), type);
}

#include "trace/recorder/Modules.h"

#include "trace/recorder/Line.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <elf.h>
#include <link.h>
#include <unistd.h>

namespace recorder {

namespace {

std::string lastComponent(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string programPath()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

std::string hexText(const unsigned char* bytes, std::size_t count)
{
    Line line;
    line.quotedBytes(bytes, count);
    return line.text().substr(1, 2 * count);
}

constexpr std::size_t aligned(std::size_t size, std::size_t alignment)
{
    return (size + alignment - 1) & ~(alignment - 1);
}

// The build id among the notes of a segment; empty where there is none.
std::string buildIdIn(const unsigned char* notes, std::size_t size, std::size_t alignment)
{
    while (size >= sizeof(ElfW(Nhdr))) {
        ElfW(Nhdr) note;
        std::memcpy(&note, notes, sizeof note);
        const std::size_t name = sizeof note;
        const std::size_t content = name + aligned(note.n_namesz, alignment);
        const std::size_t whole = content + aligned(note.n_descsz, alignment);
        if (whole > size)
            return {};
        if (note.n_type == NT_GNU_BUILD_ID && note.n_namesz == sizeof ELF_NOTE_GNU &&
            std::memcmp(notes + name, ELF_NOTE_GNU, sizeof ELF_NOTE_GNU) == 0)
            return hexText(notes + content, note.n_descsz);
        notes += whole;
        size -= whole;
    }
    return {};
}

void addSegment(Module& module, const ElfW(Phdr) & header)
{
    const std::uintptr_t begin = module.base + header.p_vaddr;
    if (header.p_type == PT_NOTE && module.buildId.empty())
        module.buildId = buildIdIn(reinterpret_cast<const unsigned char*>(begin), header.p_memsz,
                                   header.p_align == 8 ? 8 : 4);
    if (header.p_type != PT_LOAD || header.p_memsz == 0)
        return;
    module.begin = module.segments.empty() ? begin : std::min(module.begin, begin);
    module.end = std::max(module.end, begin + header.p_memsz);
    if ((header.p_flags & PF_R) != 0)
        module.segments.push_back({begin, begin + header.p_memsz, (header.p_flags & PF_W) != 0,
                                   (header.p_flags & PF_X) != 0});
}

Module moduleOf(const dl_phdr_info& info, bool isProgram)
{
    Module module;
    module.path = isProgram ? programPath() : info.dlpi_name;
    module.name = lastComponent(module.path);
    module.base = info.dlpi_addr;
    for (int i = 0; i < info.dlpi_phnum; ++i)
        addSegment(module, info.dlpi_phdr[i]);
    return module;
}

// What the kernel puts into every process has no path.
bool isFile(const Module& module)
{
    return module.path.find('/') != std::string::npos;
}

int collect(dl_phdr_info* info, std::size_t /*size*/, void* data)
{
    auto& modules = *static_cast<std::vector<Module>*>(data);
    Module module = moduleOf(*info, modules.empty());
    if (modules.empty() || isFile(module))
        modules.push_back(std::move(module));
    return 0;
}

bool isHere(const Module& module)
{
    const auto here = reinterpret_cast<std::uintptr_t>(&collect);
    return here >= module.begin && here < module.end;
}

} // namespace

Modules& Modules::instance()
{
    // Never destroyed: calls come until the very end of the process.
    static auto& modules = *new Modules;
    return modules;
}

Modules::Modules()
{
    refresh();
    m_program = m_modules.front();
    m_recorder = *std::find_if(m_modules.begin(), m_modules.end(), &isHere);
}

void Modules::refresh()
{
    m_modules.clear();
    dl_iterate_phdr(&collect, &m_modules);
}

const Module* Modules::find(std::uintptr_t address) const
{
    const auto found =
        std::find_if(m_modules.begin(), m_modules.end(), [address](const Module& module) {
            return address >= module.begin && address < module.end;
        });
    return found == m_modules.end() ? nullptr : &*found;
}

std::string Modules::placeOf(std::uintptr_t address)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Module* module = find(address);
    if (!module) {
        refresh();
        module = find(address);
    }
    Line line;
    line.hex(address - (module ? module->base : 0));
    const std::string offset = line.text().substr(1, line.size() - 2);
    return module ? module->name + '+' + offset : offset;
}

std::uintptr_t Modules::readableEnd(std::uintptr_t address)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Module* module = find(address);
    if (!module)
        return 0;
    for (const Segment& segment : module->segments) {
        if (address >= segment.begin && address < segment.end)
            return segment.end;
    }
    return 0;
}

std::vector<Module> Modules::takeUntold()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Module> untold;
    for (const Module& module : m_modules) {
        const bool isTold = std::find(m_told.begin(), m_told.end(), module.path) != m_told.end();
        if (isTold || isHere(module))
            continue;
        m_told.push_back(module.path);
        untold.push_back(module);
    }
    return untold;
}

void Modules::forget()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    refresh();
    ++m_generation;
}

} // namespace recorder

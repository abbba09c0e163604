#include "inspection/host/ElfObject.h"

#include <QFileInfo>

#include <algorithm>

namespace {

// A library that says nothing about its stack gets the default of both machines, an executable one.
bool wantsExecutableStack(const ElfFile& file)
{
    for (const GElf_Phdr& segment : file.segments()) {
        if (segment.p_type == PT_GNU_STACK)
            return (segment.p_flags & PF_X) != 0;
    }
    return true;
}

bool hasInterpreter(const ElfFile& file)
{
    return std::any_of(file.segments().begin(), file.segments().end(),
                       [](const GElf_Phdr& segment) { return segment.p_type == PT_INTERP; });
}

// Programs are shared objects for the most part. Some libraries have an interpreter too, so that
// they can print their version; programs have it with a mark, or, from older linkers, without a
// name.
bool isProgram(const ElfFile& file, ElfDynamic& dynamic)
{
    if (file.identity().type != ET_DYN || (dynamic.value(DT_FLAGS_1) & DF_1_PIE) != 0)
        return true;
    return hasInterpreter(file) && dynamic.has(DT_DEBUG) && !dynamic.has(DT_SONAME);
}

void readFlags(const ElfDynamic& dynamic, ElfObject& object)
{
    const quint64 more = dynamic.value(DT_FLAGS_1);
    object.refusesLoading = (more & DF_1_NOOPEN) != 0;
    object.ignoresDefaultFolders = (more & DF_1_NODEFLIB) != 0;
    object.hasTextRelocations =
        dynamic.has(DT_TEXTREL) || (dynamic.value(DT_FLAGS) & DF_TEXTREL) != 0;
}

ElfFault readDynamic(const ElfFile& file, ElfDynamic& dynamic, ElfObject& object)
{
    if (dynamic.fault() != ElfFault::None)
        return dynamic.fault();
    object.needed = dynamic.needed();
    object.soname = dynamic.text(DT_SONAME).value_or(QByteArray());
    object.rpath = dynamic.text(DT_RPATH);
    object.runpath = dynamic.text(DT_RUNPATH);
    object.isProgram = isProgram(file, dynamic);
    object.wantsExecutableStack = wantsExecutableStack(file);
    readFlags(dynamic, object);
    const ElfVersions versions(file, dynamic);
    object.hasVersions = dynamic.has(DT_VERSYM);
    object.versionNeeds = versions.needs();
    object.versions = versions.offered();
    object.symbols = readElfSymbols(file, dynamic, versions);
    const bool isDamaged = versions.isDamaged() || object.symbols.isDamaged;
    object.isRead = !isDamaged;
    return isDamaged ? ElfFault::Damaged : ElfFault::None;
}

} // namespace

QString ElfObject::fileName() const
{
    return QFileInfo(path).fileName();
}

std::shared_ptr<const ElfObject> readElfObject(const QString& path)
{
    const auto object = std::make_shared<ElfObject>();
    object->path = QFileInfo(path).absoluteFilePath();
    const ElfFile file(path);
    object->fault = file.fault();
    object->identity = file.identity();
    if (file.fault() == ElfFault::None && !file.segments().isEmpty()) {
        ElfDynamic dynamic(file);
        object->fault = readDynamic(file, dynamic, *object);
    }
    return object;
}

#include "inspection/host/LoadScope.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Of a process that works; a chain of files that need each other without end stops here.
constexpr int mostLibraries = 2000;

} // namespace

LoadScope::LoadScope(const SearchPlaces& places, ElfObjects& objects) : m_search(places, objects) {}

void LoadScope::load(const std::shared_ptr<const ElfObject>& program,
                     const std::shared_ptr<const ElfObject>& library)
{
    m_program = program;
    // Registered first, so that the application's own need finds it in place of another one.
    const int place = program ? 1 : 0;
    m_checked = place;
    m_places.insert(QFile::encodeName(library->fileName()), place);
    if (!library->soname.isEmpty())
        m_places.insert(library->soname, place);
    if (program)
        add(program, -1, true);
    add(library, program ? 0 : -1, false);
    if (program)
        loadNeeds(0, true);
    loadNeeds(m_checked, false);
}

int LoadScope::add(const std::shared_ptr<const ElfObject>& object, int loader, bool isOfApplication)
{
    const int place = m_libraries.size();
    m_libraries.append({object, loader, isOfApplication});
    m_placesOfFiles.insert(QFileInfo(object->path).canonicalFilePath(), place);
    if (!object->soname.isEmpty() && !m_places.contains(object->soname))
        m_places.insert(object->soname, place);
    return place;
}

// Breadth first: all that one library needs, then what those need.
void LoadScope::loadNeeds(int first, bool isOfApplication)
{
    int next = first;
    while (next < m_libraries.size() && m_libraries.size() < mostLibraries) {
        const std::shared_ptr<const ElfObject> object = m_libraries[next].object;
        if (next == first ||
            (next > m_checked && m_libraries[next].isOfApplication == isOfApplication)) {
            for (const QByteArray& name : object->needed)
                resolve(name, next, isOfApplication);
        }
        ++next;
    }
}

void LoadScope::resolve(const QByteArray& name, int wantedBy, bool isOfApplication)
{
    NeededLibrary need;
    need.name = name;
    need.wantedBy = wantedBy;
    int place = placeOf(name);
    if (place >= 0) {
        need.found.by = FoundBy::LoadedBefore;
        need.found.object = m_libraries[place].object;
    } else {
        need.found = m_search.find(name, chainOf(wantedBy));
    }
    const auto& object = need.found.object;
    if (place < 0 && object && object->fault == ElfFault::None) {
        place = known(object);
        if (place < 0)
            place = add(object, wantedBy, isOfApplication);
        m_places.insert(name, place);
    }
    m_isNeededByApplication = m_isNeededByApplication || (isOfApplication && place == m_checked);
    m_needs.append(need);
}

int LoadScope::known(const std::shared_ptr<const ElfObject>& object) const
{
    return m_placesOfFiles.value(QFileInfo(object->path).canonicalFilePath(), -1);
}

QVector<const ElfObject*> LoadScope::chainOf(int place) const
{
    QVector<const ElfObject*> chain;
    for (int i = place; i >= 0; i = m_libraries[i].loader)
        chain.append(m_libraries[i].object.get());
    if (m_program && chain.last() != m_program.get())
        chain.append(m_program.get());
    return chain;
}

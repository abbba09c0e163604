#pragma once

#include "inspection/host/LibrarySearch.h"

/// A library that the dynamic loader would load, or has loaded with the application.
struct LoadedLibrary
{
    std::shared_ptr<const ElfObject> object;
    int loader = -1; ///< the place of the library that needs it, -1 for those that nothing needs
    bool isOfApplication = false; ///< true: there without the library that is checked
};

/// A needed library, and what the search for it came to.
struct NeededLibrary
{
    QByteArray name;
    int wantedBy = 0; ///< the place of the library that needs it
    FoundLibrary found;
};

/// All libraries that would be in a process of the application with one more library, in the order
/// in which they are asked for symbols.
class LoadScope
{
public:
    /// `objects` has to outlive this object.
    LoadScope(const SearchPlaces& places, ElfObjects& objects);

    /// `program` may be null. A library that the program needs itself, by its own name or its
    /// file's, takes the place of the one that would be found.
    void load(const std::shared_ptr<const ElfObject>& program,
              const std::shared_ptr<const ElfObject>& library);

    const QVector<LoadedLibrary>& libraries() const { return m_libraries; }

    /// Each need of each library, in the order in which they are looked for; those of the
    /// application first.
    const QVector<NeededLibrary>& needs() const { return m_needs; }

    /// The place of the library that is checked.
    int checked() const { return m_checked; }

    /// True where the application needs the library that is checked.
    bool isNeededByApplication() const { return m_isNeededByApplication; }

    /// The library that was loaded under this name; -1 where none was.
    int placeOf(const QByteArray& name) const { return m_places.value(name, -1); }

private:
    int add(const std::shared_ptr<const ElfObject>& object, int loader, bool isOfApplication);
    void loadNeeds(int first, bool isOfApplication);
    void resolve(const QByteArray& name, int wantedBy, bool isOfApplication);
    int known(const std::shared_ptr<const ElfObject>& object) const;
    QVector<const ElfObject*> chainOf(int place) const;

    LibrarySearch m_search;
    std::shared_ptr<const ElfObject> m_program;
    QVector<LoadedLibrary> m_libraries;
    QVector<NeededLibrary> m_needs;
    QHash<QByteArray, int> m_places;     ///< by the names under which they were asked for
    QHash<QString, int> m_placesOfFiles; ///< by the files that they are, links followed
    int m_checked = -1;
    bool m_isNeededByApplication = false;
};

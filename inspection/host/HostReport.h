#pragma once

#include "inspection/host/NearMisses.h"

/// One thing that a check has found.
struct HostFinding
{
    enum class Severity
    {
        Note,    ///< good to know
        Warning, ///< works here, or may not work everywhere
        Error,   ///< the library cannot be loaded here
    };
    enum class Kind
    {
        File,
        Machine,
        Type,
        Application, ///< which cannot be asked
        Library,     ///< that is needed
        Version,
        Symbol,
        TextRelocation,
        Stack,
        Services,
        HostFunction,
    };

    Severity severity = Severity::Note;
    Kind kind = Kind::File;
    QString subject; ///< the symbol, library or file that it is about, untranslated
    QString text;    ///< a whole sentence, or several

    /// "note", "warning" or "error": for programs, never translated.
    QString severityName() const;

    /// Such as "symbol": for programs, never translated.
    QString kindName() const;
};

/// A needed library as a record.
struct HostNeed
{
    QString name;
    QString wantedBy; ///< the path of the library that needs it
    QString path;     ///< empty where it was not found
    FoundBy by = FoundBy::Nothing;

    /// How it was found, in a few words.
    QString wayText() const;
};

/// The newest version of a system library that the checked library wants, and the newest one here.
struct HostVersion
{
    QString product; ///< such as "glibc"
    QString wanted;  ///< such as "2.34"
    QString here;    ///< empty where the product is not found here
};

/// A symbol that nothing here supplies.
struct HostMissingSymbol
{
    QString symbol;   ///< as it stands in the file
    QString readable; ///< as a programmer knows it
    QString version;  ///< empty where any will do
    QString wantedBy; ///< the path of the library that wants it
    QVector<NearMiss> misses;
};

/// A function that host libraries supply.
struct HostFunctionState
{
    QString name;
    bool isDefined = false;
};

/// All that can be said of one library.
struct HostReport
{
    QString path; ///< absolute
    ElfFault fault = ElfFault::None;
    QString machine; ///< such as "64-bit AArch64"; empty where it is no ELF file
    QString soname;
    QVector<HostNeed> needs; ///< of the library and of those that it brings in
    QVector<HostVersion> versions;
    QVector<HostMissingSymbol> missing;
    QVector<HostFunctionState> functions; ///< empty where the file's tables cannot be read
    bool importsServices = false;
    bool hasTextRelocations = false;
    bool wantsExecutableStack = false;
    QVector<HostFinding>
        findings; ///< in the order in which the dynamic loader would come across them

    /// True where nothing was found that keeps the library from being loaded here.
    bool willLoad() const;
};

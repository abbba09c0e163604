#pragma once

#include "trace/reading/CallEntry.h"

#include <QCoreApplication>

#include <vector>

namespace trace {

class TraceFile;

/// Which calls are wanted, by what the index of a recording knows of them.
///
/// A set is a list of terms with commas between them: numbers of calls (`17`, `10-20`, `10-`,
/// `-20`), `op:NAME`, `caller:TEXT`, `manager:NAME` and `thread:NUMBER`. Of several terms of one
/// sort one has to apply, of several sorts one of each. A caller has the text somewhere in its
/// name; the other names are whole, in any case of letters, and may have wildcards (`op:Reg*`).
class CallFilter
{
    Q_DECLARE_TR_FUNCTIONS(CallFilter)

public:
    /// Admits every call.
    CallFilter() = default;

    /// Adds the terms of a set; false where one makes no sense, and `fault` tells which.
    bool add(const QString& set);
    const QString& fault() const { return m_fault; }
    /// Only calls from this library, of this manager or of this operation, besides what a set says.
    /// Names are whole.
    void setLibrary(const QString& name) { m_libraries.wanted = {name}; }
    void setManager(const QString& name) { m_managers.wanted = {name}; }
    void setOperation(const QString& name) { m_operations.wanted = {name}; }
    /// Only calls that have failed or never returned.
    void setFailuresOnly(bool isOn) { m_isFailuresOnly = isOn; }
    /// Leaves out calls from other lines than those; true where nothing is left out.
    bool isOpen() const;

    /// A filter is for one recording once it has been asked.
    bool admits(const TraceFile& file, const CallEntry& entry);

private:
    struct Range
    {
        qint64 first;
        qint64 last;
    };
    /// Terms about a name. Each name is compared once, and the answer kept under its number.
    struct Names
    {
        enum class Answer : unsigned char
        {
            Open,
            Yes,
            No
        };
        enum class Match
        {
            Whole,  ///< in any case of letters, with wildcards
            Within, ///< part of the name is enough
            Library ///< the name is that of a library and an offset in it
        };
        std::vector<QString> wanted;
        Match match = Match::Whole;
        std::vector<Answer> answers = {};

        bool isMet(const QString& term, const QString& name) const;
        bool admits(const QString& name) const;
        bool admits(const TraceFile& file, int number);
    };

    bool addTerm(const QString& term);
    bool addName(const QString& sort, const QString& name);
    bool addRange(const QString& term);

    std::vector<Range> m_ranges;
    std::vector<int> m_threads;
    Names m_operations;
    Names m_callers{{}, Names::Match::Within};
    Names m_libraries{{}, Names::Match::Library};
    Names m_managers;
    bool m_isFailuresOnly = false;
    QString m_fault;
};

} // namespace trace

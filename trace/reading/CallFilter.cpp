#include "trace/reading/CallFilter.h"

#include "trace/reading/TraceFile.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace trace {

bool CallFilter::add(const QString& set)
{
    const QStringList terms = set.split(QLatin1Char(','));
    return std::all_of(terms.begin(), terms.end(), [this](const QString& term) {
        if (addTerm(term.trimmed()))
            return true;
        m_fault = tr("\"%1\" names no calls. Wanted are numbers such as 17 or 10-20, and op:NAME, "
                     "caller:TEXT, manager:NAME or thread:NUMBER.")
                      .arg(term.trimmed());
        return false;
    });
}

bool CallFilter::addTerm(const QString& term)
{
    const int colon = term.indexOf(QLatin1Char(':'));
    return colon < 0 ? addRange(term) : addName(term.left(colon), term.mid(colon + 1));
}

bool CallFilter::addName(const QString& sort, const QString& name)
{
    if (name.isEmpty())
        return false;
    if (sort == QLatin1String("op"))
        m_operations.wanted.push_back(name);
    else if (sort == QLatin1String("caller"))
        m_callers.wanted.push_back(name);
    else if (sort == QLatin1String("manager"))
        m_managers.wanted.push_back(name);
    else if (sort != QLatin1String("thread"))
        return false;
    else {
        bool isNumber = false;
        m_threads.push_back(name.toInt(&isNumber));
        return isNumber;
    }
    return true;
}

bool CallFilter::addRange(const QString& term)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]*)(-?)([0-9]*)$"));
    const QRegularExpressionMatch match = form.match(term);
    const QString first = match.captured(1);
    const QString last = match.captured(2).isEmpty() ? first : match.captured(3);
    if (!match.hasMatch() || (first.isEmpty() && last.isEmpty()))
        return false;
    bool isFirst = true;
    bool isLast = true;
    m_ranges.push_back(
        {first.isEmpty() ? 1 : first.toLongLong(&isFirst),
         last.isEmpty() ? std::numeric_limits<qint64>::max() : last.toLongLong(&isLast)});
    return isFirst && isLast && m_ranges.back().first <= m_ranges.back().last;
}

bool CallFilter::isOpen() const
{
    return m_ranges.empty() && m_threads.empty() && m_operations.wanted.empty() &&
           m_callers.wanted.empty() && m_libraries.wanted.empty() && m_managers.wanted.empty() &&
           !m_isFailuresOnly;
}

bool CallFilter::admits(const TraceFile& file, const CallEntry& entry)
{
    if (m_isFailuresOnly && !entry.isFailure && entry.hasReturned())
        return false;
    const bool isInRange =
        m_ranges.empty() ||
        std::any_of(m_ranges.begin(), m_ranges.end(), [&entry](const Range& range) {
            return range.first <= entry.number && entry.number <= range.last;
        });
    const bool isInThread = m_threads.empty() || std::find(m_threads.begin(), m_threads.end(),
                                                           entry.thread) != m_threads.end();
    return isInRange && isInThread && m_operations.admits(file, entry.operation) &&
           m_callers.admits(file, entry.caller) && m_libraries.admits(file, entry.caller) &&
           m_managers.admits(file, entry.manager);
}

bool CallFilter::Names::admits(const TraceFile& file, int number)
{
    if (wanted.empty())
        return true;
    const auto place = static_cast<std::size_t>(number);
    if (place >= answers.size())
        answers.resize(static_cast<std::size_t>(file.nameCount()), Answer::Open);
    if (answers[place] == Answer::Open)
        answers[place] = admits(file.name(number)) ? Answer::Yes : Answer::No;
    return answers[place] == Answer::Yes;
}

bool CallFilter::Names::admits(const QString& name) const
{
    return std::any_of(wanted.begin(), wanted.end(),
                       [this, &name](const QString& term) { return isMet(term, name); });
}

bool CallFilter::Names::isMet(const QString& term, const QString& name) const
{
    switch (match) {
    case Match::Within: return name.contains(term);
    case Match::Library: return Call::library(name) == term;
    case Match::Whole: break;
    }
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(term),
                                     QRegularExpression::CaseInsensitiveOption);
    return pattern.match(name).hasMatch();
}

} // namespace trace

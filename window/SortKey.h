#pragma once

#include <QString>

#include <limits>

/// What a cell is sorted by: a number where it has one, else a text without regard to case.
class SortKey
{
public:
    /// For a cell without a value: it comes before all that have one.
    SortKey() = default;

    /// For a number, a size, or a time in any unit.
    static SortKey number(double value) { return {value, {}}; }

    /// For a text; texts come behind numbers.
    static SortKey text(const QString& text)
    {
        return {std::numeric_limits<double>::infinity(), text.toCaseFolded()};
    }

    friend bool operator<(const SortKey& a, const SortKey& b)
    {
        return a.m_number < b.m_number || (a.m_number == b.m_number && a.m_text < b.m_text);
    }

private:
    SortKey(double number, const QString& text) : m_number(number), m_text(text) {}

    double m_number = -std::numeric_limits<double>::infinity();
    QString m_text; ///< folded once: it is compared many times
};

#pragma once

#include <QByteArray>

/// Prints the lines of a recording in a form for people, on the standard error: the standard output
/// is the recorded program's.
class CallPrinter
{
public:
    explicit CallPrinter(bool hasOnlyFailures) : m_hasOnlyFailures(hasOnlyFailures) {}

    /// Whether a line is whole and tells the end of its call.
    static bool isComplete(const QByteArray& line);

    /// Prints a call that has returned, or that never will.
    void print(const QByteArray& line) const;

private:
    bool m_hasOnlyFailures;
};

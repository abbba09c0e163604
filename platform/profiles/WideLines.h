#pragma once

#include "platform/profiles/LineReading.h"

#include <QByteArray>
#include <QHash>

#include <vector>

/// Tells for each line of a profile's bytes what the wide profile calls, which read it as QSettings
/// does, should make of it.
///
/// Their lines are not those of the file: a line goes on behind a backslash at its end and within
/// quotes, and ends at an unquoted semicolon.
class WideLines
{
public:
    explicit WideLines(const QByteArray& bytes);

    const std::vector<LineReading>& readings() const { return m_readings; }

private:
    bool next();
    void skipComment();
    void scan();
    void skipEscape();
    void take();
    void takeHeader();
    void takeEntry();
    void takeOther();
    void markContinuations();
    std::size_t lineOf(int position) const;

    QByteArray m_bytes;
    std::vector<int> m_starts; ///< where each line of the file begins
    std::vector<LineReading> m_readings;
    int m_position = 0;
    int m_begin = 0;   ///< of the line being read
    int m_equals = -1; ///< its first unquoted "=", or -1
    bool m_isList = false;
    bool m_isEscaped = false;
    QString m_section;
    QHash<QString, std::size_t> m_names;
};

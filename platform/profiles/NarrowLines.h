#pragma once

#include "platform/profiles/LineReading.h"

#include <QHash>

#include <vector>

/// Tells for each line of a profile's text what the narrow profile calls make of it.
class NarrowLines
{
public:
    /// `text` is split at line feeds; what follows the last one is a line unless it is empty.
    explicit NarrowLines(const QString& text);

    const std::vector<LineReading>& readings() const { return m_readings; }

private:
    void add(const QString& line);
    void addHeader(const QString& line);
    void addEntry(const QString& line);
    LineState dropped(const QString& line) const;

    std::vector<LineReading> m_readings;
    QString m_header;                      ///< null before the first one
    QHash<QString, std::size_t> m_headers; ///< the line of each
    QHash<QString, std::size_t> m_keys;    ///< of the current section: the line of each
};

#pragma once

#include "platform/profiles/LineReading.h"
#include "platform/profiles/NameTable.h"
#include "platform/profiles/NarrowScanner.h"

#include <QHash>
#include <QStringView>

#include <vector>

/// Tells for each line of a profile's text what the narrow profile calls make of it: what
/// NarrowScanner says of the line itself, and whether a later line replaces it.
class NarrowLines
{
public:
    /// Reads nothing yet. See NarrowScanner for what a line is. The text must outlive this.
    explicit NarrowLines(QStringView text);

    /// Reads some lines; false when all have been read.
    bool step();

    /// Of each line that has been read.
    std::vector<LineMark>& marks() { return m_marks; }
    /// The lines, from 0 on, that are headers.
    std::vector<int> headerLines() const;

    /// Of each line with its names; reads first what has not been read.
    std::vector<LineReading> readings();

private:
    /// Where a piece of the text stands, and in which line.
    struct Place
    {
        int line = 0;
        int begin = 0;
        int size = 0;
    };
    struct Entry
    {
        Place key;
        std::size_t header = 0;
    };

    Place placeOf(QStringView piece) const;
    QStringView at(const Place& place) const { return m_text.mid(place.begin, place.size); }
    void beginSection();
    void replaceSection(std::size_t line);
    void addEntry();

    QStringView m_text;
    NarrowScanner m_scanner;
    std::vector<LineMark> m_marks;
    std::vector<Place> m_headers;
    QHash<QStringView, std::size_t> m_latest; ///< the line of the last header of each name
    std::vector<Entry> m_entries;
    NameTable m_keys; ///< places are indexes of m_entries
};

/// The header of a section of that name: a header line is kept with its brackets.
QString narrowHeader(const QString& section);

/// The name of the section that a header line begins for the narrow calls, which put the brackets
/// round it themselves.
QString narrowSection(QStringView header);

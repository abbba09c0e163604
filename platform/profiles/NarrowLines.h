#pragma once

#include "platform/profiles/LineReading.h"

#include <QHash>
#include <QStringView>

#include <vector>

class NarrowScanner;

/// Tells for each line of a profile's text what the narrow profile calls make of it: what
/// NarrowScanner says of the line itself, and whether a later line replaces it.
class NarrowLines
{
public:
    /// See NarrowScanner for what a line is.
    explicit NarrowLines(QStringView text);

    const std::vector<LineReading>& readings() const { return m_readings; }

private:
    /// The line of a header or a key.
    using Places = QHash<QStringView, std::size_t>;

    void replaceSection(QStringView header, Places& headers);
    void addEntry(const NarrowScanner& line, Places& keys);

    std::vector<LineReading> m_readings;
};

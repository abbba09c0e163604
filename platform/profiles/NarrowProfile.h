#pragma once

#include <QString>
#include <QStringView>

#include <map>
#include <vector>

/// The entries of a profile's text, as the narrow profile calls see it.
///
/// What of a line is kept is told by NarrowScanner. A header that occurs again discards what the
/// section held; of several entries with one key the last one counts.
///
/// Keeps views, not copies: the text, and whatever is set, must outlive it.
class NarrowProfile
{
public:
    /// Lines end with a line feed; carriage returns are characters like others.
    explicit NarrowProfile(QStringView text);

    /// The value of a key; null when there is none. Both names have to match exactly.
    QString value(QStringView header, QStringView key) const;

    /// Sets a value as given, untrimmed, in a section that is created where there is none.
    void setValue(QStringView header, QStringView key, QStringView value);

    /// The text with sections and keys in the order of their UTF-16 code units, one line for each
    /// header and each entry, and nothing else.
    QString toText();

private:
    struct Entry
    {
        QStringView key;
        QStringView value;
    };
    using Entries = std::vector<Entry>;

    static void sort(Entries& entries);

    std::map<QStringView, Entries> m_sections;
};

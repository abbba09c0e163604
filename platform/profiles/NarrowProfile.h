#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

class NarrowOutput;

/// The entries of a profile's text, as the narrow profile calls see it, to be written anew.
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

    /// Sets a value as given, untrimmed, in a section that is created where there is none. Of
    /// several values for one key the last one counts.
    void setValue(QStringView header, QStringView key, QStringView value);

    /// Writes the text with sections and keys in the order of their UTF-16 code units, one line for
    /// each header and each entry, and nothing else.
    void writeTo(NarrowOutput& output);

private:
    /// Where key and value stand in the text: half of what two views need, in a file of millions.
    struct Entry
    {
        std::uint32_t key = 0;
        std::uint32_t keySize = 0; ///< or `isSet`
        std::uint32_t value = 0;   ///< or an index of m_set
        std::uint32_t valueSize = 0;
    };
    using Entries = std::vector<Entry>;
    using Pair = std::pair<QStringView, QStringView>;

    static constexpr std::uint32_t isSet = 0xffffffff;

    Entry entryOf(QStringView key, QStringView value) const;
    QStringView keyOf(const Entry& entry) const;
    QStringView valueOf(const Entry& entry) const;
    void sort(Entries& entries) const;
    void leaveLastOnes(Entries& entries) const;
    void takeSet();

    QStringView m_text;
    std::map<QStringView, Entries> m_sections;
    std::vector<Pair> m_set;                ///< what does not stand in the text
    std::map<QStringView, Entries> m_added; ///< of m_set, not in their sections yet
};

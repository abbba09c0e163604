#include "platform/files/NameOrder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int keyBits = 64;
constexpr char16_t firstBeyondAscii = 0x80;

bool isAscii(QStringView text)
{
    char16_t all = 0;
    for (const QChar character : text)
        all = static_cast<char16_t>(all | character.unicode());
    return all < firstBeyondAscii;
}

char16_t asciiToLower(QChar character)
{
    const char16_t unit = character.unicode();
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

} // namespace

void NameOrder::add(QString name)
{
    const std::size_t start = m_folded.size();
    fold(name);
    m_entries.push_back({0, start, static_cast<int>(m_folded.size() - start), m_names.size()});
    m_names.push_back(std::move(name));
}

// Nearly all names are ASCII, whose lower case needs no tables.
void NameOrder::fold(const QString& name)
{
    if (isAscii(name)) {
        std::transform(name.cbegin(), name.cend(), std::back_inserter(m_folded), asciiToLower);
        return;
    }
    const QString lower = name.toLower();
    m_folded.append(QStringView(lower).utf16(), static_cast<std::size_t>(lower.size()));
    m_unitBits = 16;
}

// The same algorithm as in QDir and the same answer to every comparison, hence the same order, also
// of those that compare equal; but most comparisons look at one number only.
QStringList NameOrder::take()
{
    const int skipped = commonLength();
    for (Entry& entry : m_entries)
        entry.key = keyOf(entry, skipped);
    std::sort(m_entries.begin(), m_entries.end(),
              [this](const Entry& a, const Entry& b) { return isLess(a, b); });
    QStringList result;
    result.reserve(static_cast<int>(m_names.size()));
    for (const Entry& entry : m_entries) { // moved: counting the references of each takes longer
        result.append(QString());
        result.last().swap(m_names[entry.index]);
    }
    *this = {};
    return result;
}

QStringView NameOrder::folded(const Entry& entry) const
{
    return {m_folded.data() + entry.start, entry.length};
}

// How many code units all names begin with alike.
int NameOrder::commonLength() const
{
    if (m_entries.empty())
        return 0;
    const QStringView first = folded(m_entries.front());
    auto length = static_cast<int>(first.size());
    for (const Entry& entry : m_entries) {
        const QStringView other = folded(entry);
        const auto end = first.begin() + std::min<qsizetype>(length, other.size());
        const auto differing = std::mismatch(first.begin(), end, other.begin()).first;
        length = static_cast<int>(differing - first.begin());
    }
    return length;
}

// A missing code unit counts as zero, which no name contains.
std::uint64_t NameOrder::keyOf(const Entry& entry, int skipped) const
{
    const QStringView text = folded(entry);
    std::uint64_t key = 0;
    for (int i = skipped; i < skipped + keyBits / m_unitBits; ++i)
        key = key << m_unitBits | (i < text.size() ? text.at(i).unicode() : 0U);
    return key;
}

bool NameOrder::isLess(const Entry& a, const Entry& b) const
{
    if (a.key != b.key)
        return a.key < b.key;
    return folded(a).compare(folded(b)) < 0;
}

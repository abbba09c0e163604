#include "inspection/profiles/DifferenceRows.h"

#include "inspection/profiles/ReadableLine.h"

#include <algorithm>

namespace {

using Kind = DifferenceRow::Kind;
using Hunk = LineDifference::Hunk;

constexpr int context = 3; // lines, as diff has it

class RowList
{
public:
    explicit RowList(const LineDifference& difference) : m_difference(difference) {}

    std::vector<DifferenceRow> rows()
    {
        const Hunk* former = nullptr;
        for (const Hunk& hunk : m_difference.hunks()) {
            lead(former, hunk);
            for (int i = 0; i < hunk.removed; ++i)
                m_rows.push_back({Kind::Removed, hunk.before + i, -1});
            for (int i = 0; i < hunk.added; ++i)
                m_rows.push_back({Kind::Added, -1, hunk.after + i});
            former = &hunk;
        }
        if (former)
            trail(*former, m_difference.before().count());
        return std::move(m_rows);
    }

private:
    // The kept lines between two hunks, or those next to either.
    void lead(const Hunk* former, const Hunk& hunk)
    {
        const int equalFrom = former ? former->before + former->removed : 0;
        int first = std::max(equalFrom, hunk.before - context);
        if (former && first <= equalFrom + context) {
            first = equalFrom;
        } else {
            if (former)
                trail(*former, hunk.before);
            m_rows.push_back({});
        }
        keep(first, hunk.before, hunk.after - hunk.before);
    }
    void trail(const Hunk& hunk, int end)
    {
        const int first = hunk.before + hunk.removed;
        keep(first, std::min(end, first + context),
             hunk.after + hunk.added - hunk.before - hunk.removed);
    }
    void keep(int first, int end, int shift)
    {
        for (int line = first; line < end; ++line)
            m_rows.push_back({Kind::Kept, line, line + shift});
    }

    const LineDifference& m_difference;
    std::vector<DifferenceRow> m_rows;
};

// Writes the groups of rows one after the other.
class UnifiedText
{
public:
    explicit UnifiedText(const LineDifference& difference) : m_difference(difference) {}

    QByteArray of(const std::vector<DifferenceRow>& rows)
    {
        for (auto gap = rows.begin(); gap != rows.end();) {
            const auto end = std::find_if(gap + 1, rows.end(), [](const DifferenceRow& row) {
                return row.kind == Kind::Gap;
            });
            addGroup(gap + 1, end);
            gap = end;
        }
        return m_text;
    }

private:
    using Rows = std::vector<DifferenceRow>::const_iterator;

    void addGroup(Rows first, Rows end)
    {
        m_text += "@@ -" + range(first, end, &DifferenceRow::before) + " +" +
                  range(first, end, &DifferenceRow::after) + " @@\n";
        for (auto row = first; row != end; ++row)
            addLine(*row);
    }
    // A side without a line in the group has none at all: kept lines would stand on both sides.
    static QByteArray range(Rows first, Rows end, int DifferenceRow::*number)
    {
        const auto isThere = [number](const DifferenceRow& row) { return row.*number >= 0; };
        const auto count = static_cast<int>(std::count_if(first, end, isThere));
        if (count == 0)
            return QByteArrayLiteral("0,0");
        const QByteArray start =
            QByteArray::number((*std::find_if(first, end, isThere)).*number + 1);
        return count == 1 ? start : start + ',' + QByteArray::number(count);
    }
    void addLine(const DifferenceRow& row)
    {
        const bool isNew = row.kind == Kind::Added;
        const ByteLines& lines = isNew ? m_difference.after() : m_difference.before();
        m_text += row.kind == Kind::Kept ? ' ' : isNew ? '+' : '-';
        addBytes(lines, isNew ? row.after : row.before);
    }
    // UTF-16 would make the whole text unreadable.
    void addBytes(const ByteLines& lines, int number)
    {
        const ReadableLine line(lines, number);
        const std::string_view bytes = lines.at(number);
        if (lines.unit() != ByteLines::Unit::Byte)
            m_text += line.text().toUtf8() + '\n';
        else
            m_text.append(bytes.data(), static_cast<int>(bytes.size()));
        if (line.end() != ReadableLine::End::None)
            return;
        m_text += lines.unit() == ByteLines::Unit::Byte ? "\n" : "";
        m_text += "\\ No newline at end of file\n";
    }

    const LineDifference& m_difference;
    QByteArray m_text;
};

} // namespace

std::vector<DifferenceRow> differenceRows(const LineDifference& difference)
{
    return RowList(difference).rows();
}

QByteArray unifiedDifference(const LineDifference& difference, const QByteArray& nameBefore,
                             const QByteArray& nameAfter)
{
    if (difference.hunks().empty())
        return {};
    return "--- " + nameBefore + "\n+++ " + nameAfter + '\n' +
           UnifiedText(difference).of(differenceRows(difference));
}

#include "platform/profiles/NarrowLines.h"

#include "platform/profiles/NarrowScanner.h"

namespace {

bool isHeader(LineState state)
{
    return state == LineState::Header || state == LineState::ReplacedHeader;
}

} // namespace

NarrowLines::NarrowLines(QStringView text)
{
    Places headers;
    Places keys; // of the current section
    for (NarrowScanner scanner(text); scanner.next();) {
        if (scanner.isHeader()) {
            replaceSection(scanner.line(), headers);
            keys.clear();
        }
        if (scanner.isEntry())
            addEntry(scanner, keys);
        else
            m_readings.push_back({scanner.state(), {}, {}});
    }
}

// The section begins anew: what it held under this header so far is gone.
void NarrowLines::replaceSection(QStringView header, Places& headers)
{
    const auto earlier = headers.find(header);
    if (earlier != headers.end()) {
        std::size_t replaced = *earlier;
        m_readings[replaced].state = LineState::ReplacedHeader;
        while (++replaced < m_readings.size() && !isHeader(m_readings[replaced].state)) {
            LineState& state = m_readings[replaced].state;
            if (state == LineState::Entry || state == LineState::Unreachable)
                state = LineState::ReplacedHeader;
        }
    }
    headers[header] = m_readings.size();
}

void NarrowLines::addEntry(const NarrowScanner& line, Places& keys)
{
    const QStringView key = line.key();
    const auto earlier = keys.find(key);
    if (earlier != keys.end())
        m_readings[*earlier].state = LineState::ReplacedKey;
    keys[key] = m_readings.size();
    const LineState state = line.state();
    if (state == LineState::Entry)
        m_readings.push_back({state, line.header().mid(1).chopped(1).toString(), key.toString()});
    else
        m_readings.push_back({state, {}, {}});
}

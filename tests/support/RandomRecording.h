#pragma once

#include "tests/support/MadeRecording.h"

#include <random>
#include <set>
#include <vector>

/// A recording of any length, the same for the same seed: keys are opened, asked for values and
/// mostly closed, fonts are enumerated with procedures within.
class RandomRecording
{
public:
    explicit RandomRecording(unsigned int seed) : m_random(seed) {}

    /// `calls` lines of calls behind the header.
    QByteArray make(int calls)
    {
        QByteArray bytes = MadeRecording::header();
        while (m_number < calls)
            bytes += next();
        return bytes;
    }

    int openKeys() const { return static_cast<int>(m_keys.size()); }
    int opened() const { return m_opened; }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    QByteArray name() { return "Name" + QByteArray::number(upTo(50)); }

    QByteArray next()
    {
        const int choice = upTo(9);
        if (choice == 0)
            return open();
        if (choice == 1 && !m_keys.empty())
            return close();
        if (choice == 2)
            return fonts();
        const QByteArray key = m_keys.empty() ? root() : m_keys.back();
        return line(MadeRecording::query(key, name(), upTo(3) == 0 ? "" : "07000000"));
    }

    QByteArray open()
    {
        const QByteArray parent = m_keys.empty() || upTo(1) == 0 ? root() : m_keys.front();
        if (upTo(4) == 0)
            return line(MadeRecording::open(parent, name(), ""));
        m_keys.push_back("0x55" + QByteArray::number(++m_opened + 0x1000, 16));
        return line(MadeRecording::open(parent, name(), m_keys.back()));
    }

    QByteArray close()
    {
        const auto place = m_keys.begin() + upTo(static_cast<int>(m_keys.size()) - 1);
        const QByteArray line = this->line(MadeRecording::close(*place));
        m_keys.erase(place);
        return line;
    }

    QByteArray fonts()
    {
        const QByteArray enclosing = line({"font", "enumFontFamiliesEx", "{\"flags\":0}", "1"});
        const QByteArray number = QByteArray::number(m_number);
        return enclosing + "{\"n\":" + QByteArray::number(++m_number) +
               ",\"t\":1,\"d\":2,\"thread\":1,\"depth\":1,\"in\":" + number +
               ",\"callback\":\"EnumFontFamExProc\",\"args\":{\"callerValue\":5},\"result\":1}\n";
    }

    QByteArray line(const MadeRecording::Call& call)
    {
        return MadeRecording::line(++m_number, call);
    }
    static QByteArray root() { return "HKEY_CURRENT_USER"; }

    std::mt19937 m_random;
    int m_number = 0;
    int m_opened = 0;
    std::vector<QByteArray> m_keys;
};

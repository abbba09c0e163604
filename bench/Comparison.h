#pragma once

#include <functional>
#include <string>

/// Runs two pieces of work in turns, so that whatever else the machine does hits both alike, and
/// prints the medians of their times and the ratio of the medians.
class Comparison
{
public:
    using Work = std::function<void()>;

    explicit Comparison(int rounds) : m_rounds(rounds) {}

    /// `limit` is the ratio that is wanted at most; 0 for none.
    void run(const std::string& name, const Work& work, const std::string& peerName,
             const Work& peer, double limit = 0) const;

private:
    int m_rounds;
};

#pragma once

#include <QtGlobal>

#include <vector>

namespace trace {

/// Which calls of two recordings belong together.
///
/// Calls are paired within their group, which stands for a calling library and a manager, so that
/// the order in which different libraries or managers take turns does not matter. First come those
/// with the same operation and arguments in the same order, then, between them, those with the same
/// operation.
class CallAlignment
{
public:
    struct Signature
    {
        int group;
        int operation;
        quint64 arguments;
    };

    CallAlignment(std::vector<Signature> before, std::vector<Signature> after);

    /// For each call its partner on the other side; negative where it has none.
    const std::vector<int>& partnersOfBefore() const { return m_ofBefore; }
    const std::vector<int>& partnersOfAfter() const { return m_ofAfter; }

private:
    /// Calls by their places.
    using Places = std::vector<int>;

    struct Group
    {
        Places before;
        Places after;
    };

    void align(const Group& group);
    void alignGap(const Group& gap);
    void pair(int before, int after);

    std::vector<Signature> m_before;
    std::vector<Signature> m_after;
    std::vector<int> m_ofBefore;
    std::vector<int> m_ofAfter;
};

} // namespace trace

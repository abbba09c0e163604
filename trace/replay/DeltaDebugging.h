#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

namespace replay {

/// Shrinks a list as far as a test allows: what is left passes the test, and no single element of
/// it can be left out. The order stays.
class DeltaDebugging
{
public:
    using Items = std::vector<qint64>;
    using Test = std::function<bool(const Items&)>;

    /// The test is never asked about the whole list, which passes it.
    explicit DeltaDebugging(Test test);

    Items shrink(Items items);

private:
    bool takePiece();
    bool leavePieceOut();
    Items piece(std::size_t place) const;
    Items without(std::size_t place) const;

    Test m_test;
    Items m_items;
    std::size_t m_pieces = 2; ///< that the list is cut into
};

} // namespace replay

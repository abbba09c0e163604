#pragma once

#include <QString>

#include <vector>

/// Tells names that have been mistyped: how many characters have to be put in, left out, replaced
/// or changed round with their neighbour to make one name of another, in whatever case of letters.
class TypingDistance
{
public:
    /// From this name. As many mistakes are taken for mistyping as its length allows: in a short
    /// name each one would make any other of it.
    explicit TypingDistance(const QString& typed);

    int mostMistakes() const { return m_most; }
    /// To another name; `mostMistakes() + 1` where it is farther than that.
    int to(const QString& name);

private:
    int bestOfRow(int row, const QString& name);
    int at(int row, int column, const QString& name) const;

    QString m_typed;
    int m_most;
    std::vector<int> m_beforeLast; ///< distances of the beginnings of both names
    std::vector<int> m_last;
    std::vector<int> m_row;
};

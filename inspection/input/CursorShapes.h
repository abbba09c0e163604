#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>

/// The shapes of cursors in words, in the language of the interface.
class CursorShapes
{
    Q_DECLARE_TR_FUNCTIONS(CursorShapes)

public:
    /// Those to try SetCursor with.
    static constexpr std::array<Qt::CursorShape, 8> offered{
        Qt::ArrowCursor, Qt::WaitCursor,         Qt::BusyCursor,    Qt::CrossCursor,
        Qt::IBeamCursor, Qt::PointingHandCursor, Qt::SizeAllCursor, Qt::ForbiddenCursor};

    /// "Arrow"; the number of a shape that is not among those offered.
    static QString name(Qt::CursorShape shape);

    /// What GetCursor answers: the shape of the override cursor, or that none is set.
    static QString current();
};

#pragma once

#include <qnamespace.h>

/// The levels that were added to the stack of override cursors from here. Each SetCursor adds one,
/// and the service never takes one away; so this takes them back past the service, at the latest
/// when it is destroyed.
class CursorLevels
{
public:
    CursorLevels() = default;
    ~CursorLevels();

    CursorLevels(const CursorLevels&) = delete;
    CursorLevels& operator=(const CursorLevels&) = delete;

    /// Sets a cursor of this shape through the service, as a level of its own.
    void add(Qt::CursorShape shape);
    /// Takes all of them back.
    void takeBack();
    int count() const { return m_count; }

private:
    int m_count = 0;
};

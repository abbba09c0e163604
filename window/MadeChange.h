#pragma once

#include <QUndoCommand>

#include <utility>

/// An entry of a page's undo stack for a change that has been made already: pushing it does
/// nothing more. Its text names the change. Where taking it back or making it again fails, the
/// entry reports why and calls `setObsolete(true)`, which removes it.
class MadeChange : public QUndoCommand
{
public:
    using QUndoCommand::QUndoCommand;

    void undo() final { takeBack(); }

    void redo() final
    {
        if (std::exchange(m_isPushed, true))
            makeAgain();
    }

protected:
    virtual void takeBack() = 0;
    virtual void makeAgain() = 0;

private:
    bool m_isPushed = false;
};

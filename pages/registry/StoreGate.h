#pragma once

#include "platform/files/FileStamp.h"

#include <QObject>

#include <functional>
#include <optional>

class PageContext;
class StoreWatch;
class QDialog;
class QWidget;

/// What every change of the store passes first: where another program has deleted, replaced or
/// changed the store's file, it asks whether to write all the same.
class StoreGate : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void()>;
    /// Exports the whole store, and calls `exported` when that has succeeded.
    using Export = std::function<void(const Action& exported)>;

    /// Questions open over `window`, which owns this object too. `watch` outlives it.
    StoreGate(PageContext& page, StoreWatch& watch, Export exportStore, QWidget* window);

    /// Calls `write` at once where the store is in step with its file; where it is not, when the
    /// user has said so. Otherwise `dropped` is called, in a turn of the event loop of its own.
    void pass(const Action& write, const Action& dropped = {});
    /// For what a dialog behind the gate asks for: it may have been open for long, and is asked
    /// about once more only where something has happened to the file since.
    void passAgain(const Action& write, const Action& dropped = {});

    /// Opens a dialog behind the gate and owns it. `accepted` changes the store; where the user
    /// does not want that any longer, the dialog comes back with what was typed.
    void open(QDialog* dialog, const Action& accepted);

private:
    class Passage;

    void decide(const Action& write);
    void ask(const Action& write);
    void writeAllTheSame(const Action& write);

    PageContext& m_page;
    StoreWatch& m_watch;
    Export m_export;
    QWidget* m_window;
    /// The file that may be written over: the user has said so since the last action began.
    std::optional<FileStamp> m_allowed;
};

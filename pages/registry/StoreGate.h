#pragma once

#include <QObject>

#include <functional>

class PageContext;
class StoreWatch;
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
    /// user has said so, and never after Cancel.
    void pass(const Action& write);

private:
    void decide(const Action& write);
    void ask(const Action& write);

    PageContext& m_page;
    StoreWatch& m_watch;
    Export m_export;
    QWidget* m_window;
};

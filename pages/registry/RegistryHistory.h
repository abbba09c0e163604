#pragma once

#include "inspection/registry/StoreChangeJob.h"

#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>

class PageContext;
class QWidget;

/// The changes of the registry page that can be undone. What is undone goes back into the store as
/// it stood, entry by entry; where somebody else has changed an entry meanwhile, the user is asked.
class RegistryHistory : public QObject
{
    Q_OBJECT

public:
    /// A key, or a value of it where `name` is not empty.
    struct Place
    {
        QString key;
        QString name;
    };

    /// What the undo stack tells of a change, and what is looked at when it has been undone or
    /// redone; nothing where that stays as it is.
    struct Description
    {
        QString text;
        std::optional<Place> before;
        std::optional<Place> after;
    };

    /// Calls `write` at once or later, or never.
    using Gate = std::function<void(const std::function<void()>& write)>;

    /// Questions open over `window`, which owns this object too. What is undone or redone passes
    /// the gate first.
    RegistryHistory(PageContext& page, Gate gate, QWidget* window);

    /// Records a change, with a line of the page's log for each entry.
    std::shared_ptr<StoreRecorder> recorder() const;

    /// Puts a change that has been recorded onto the undo stack. False where nothing has changed,
    /// and nothing is put there.
    bool add(const Description& description, StoreRecorder& recorder);
    /// Makes a planned change, and puts it onto the undo stack.
    void make(const Description& description, StoreChange change);

signals:
    /// The store has changed; this key, and this value of it unless empty, is to be looked at.
    void changed(const QString& path, const QString& name);
    /// The store has changed in many places.
    void outdated();

private:
    class Step;
    class Passage;
    using Direction = StoreChangeJob::Direction;
    using Others = StoreChangeJob::Others;

    struct Change
    {
        Description description;
        std::shared_ptr<const StoreChange> entries;
    };

    StoreRecorder::Log log(const QString& prefix = {}) const;
    bool push(const Change& change);
    void endMaking(const Change& change, const StoreChangeJob& job, bool complete);
    void request(const Change& change, Direction direction);
    void restore(const Change& change, Direction direction, Others others);
    void endRestoring(const Change& change, Direction direction, const StoreChangeJob& job,
                      bool complete);
    void show(const Change& change, Direction direction);
    void ask(const Change& change, Direction direction, const QStringList& foreign);
    void reportRestored(const Change& change, Direction direction, const StoreChangeJob& job);
    void reportCancelled(const Change& change, Direction next);
    void stay(Direction direction);

    PageContext& m_page;
    QPointer<QUndoStack> m_stack; ///< null when the page is being destroyed
    Gate m_gate;
    QWidget* m_window;
    bool m_isStaying = false; ///< the stack goes back to where it was, and nothing else happens
};

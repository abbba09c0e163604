#pragma once

#include "inspection/registry/StoreSaving.h"
#include "platform/files/KnownFile.h"
#include "platform/registry/ListingCache.h"

#include <QBasicTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariant>

#include <memory>
#include <optional>

/// Sees each saving of the store by itself, which it asks itself for by an event, and leaves no
/// half a file behind it: the former one is put back, the store keeps what it held as changes that
/// are still to be saved, and tries again every second or so.
class StoreSavingGuard : public QObject
{
    Q_OBJECT

public:
    /// What has become of a saving.
    struct Outcome
    {
        bool hadFile = false;
        bool hasWritten = false;
        bool isCut = false;      ///< and the former file has been put back
        bool isRepeated = false; ///< it was to save nothing else than the one before, cut too
        KnownFile file;          ///< as it is now
    };

    /// The one that guards the store of the host library; they share it. Null without a store.
    static std::shared_ptr<StoreSavingGuard> ofStore();
    /// Tries once more to save what is still to be saved.
    ~StoreSavingGuard() override;

    StoreSavingGuard(const StoreSavingGuard&) = delete;
    StoreSavingGuard& operator=(const StoreSavingGuard&) = delete;

    /// Ends the saving that is under way, if any, at once: otherwise that happens in the next turn
    /// of the event loop.
    void settle();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void ended(const StoreSavingGuard::Outcome& outcome);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using Entries = QMap<QString, QVariant>;

    StoreSavingGuard();
    void begin();
    bool isCut() const;
    void putBack();
    Entries owe(const Entries& held);

    QPointer<QObject> m_store;
    std::optional<StoreSaving> m_saving;
    int m_entries = 0;  ///< of the store before the saving
    Entries m_owed;     ///< what a saving that was cut has not saved; null what it has not removed
    QBasicTimer m_wait; ///< until the next trial
    /// Set when a saving waits for that: the store then asks itself for no other one, which would
    /// be the sign of further changes.
    std::optional<ListingCache::Suspension> m_withheld;
};

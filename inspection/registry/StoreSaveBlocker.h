#pragma once

#include "platform/registry/ListingCache.h"

#include <QObject>
#include <QPointer>

#include <optional>

/// While one lives, the store does not save itself between the slices of a job, because saving
/// writes the whole file anew each time. When the last one goes, the store saves itself as after
/// any change. Does nothing without a store.
class StoreSaveBlocker : public QObject
{
    Q_OBJECT

public:
    StoreSaveBlocker();
    ~StoreSaveBlocker() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QObject> m_store; ///< null when it has gone meanwhile
    /// Set when a saving has been put off: the store then asks itself for no other one, which would
    /// be the sign of further changes.
    std::optional<ListingCache::Suspension> m_blocked;
};

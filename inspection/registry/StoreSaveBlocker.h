#pragma once

#include <QObject>
#include <QPointer>

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
    bool m_blocked = false;    ///< a saving has been put off
};

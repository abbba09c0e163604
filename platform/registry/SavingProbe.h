#pragma once

#include <QObject>

class QSettings;

/// Tells whether a store has changes that it has not saved yet.
///
/// Every change of a QSettings object, by whomever, makes it post itself an event by which it saves
/// itself, and only one of them as long as that is on its way. QSettings tells nobody of its
/// changes in another way.
class SavingProbe : public QObject
{
    Q_OBJECT

public:
    /// True when the event is on its way. It is not delivered by this: it is taken from the queue
    /// and posted again behind what is posted already. Nothing is left on the store. Call it in the
    /// thread of the store and of this object, and only as long as the application object takes
    /// events: without one the event would be lost.
    bool isSavingPending(QSettings& store);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_isAsking = false;
    bool m_hasSeen = false;
};

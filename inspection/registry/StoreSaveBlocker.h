#pragma once

#include <QObject>

/// While it lives, the store does not save itself between the slices of a job: saving writes the
/// whole file anew each time. At its end the store saves as after any change.
class StoreSaveBlocker : public QObject
{
    Q_OBJECT

public:
    StoreSaveBlocker();
    ~StoreSaveBlocker() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_swallowed = false;
};

#pragma once

#include <QObject>

class QAbstractScrollArea;

/// Keeps a view at its end while it grows, for as long as the user leaves it there.
class TailFollower : public QObject
{
    Q_OBJECT

public:
    /// The view owns it.
    explicit TailFollower(QAbstractScrollArea* view);

private:
    bool m_atEnd = true;
};

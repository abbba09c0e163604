#pragma once

#include "inspection/log/LogLines.h"

#include <QSortFilterProxyModel>

/// The entries from a level upwards that contain a text. Lines that frame a run have no level and
/// pass while every level does.
class LogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLowest(LogEntry::Level level);
    /// Case does not matter; the empty text lets everything pass.
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    LogEntry::Level m_lowest = LogEntry::Level::Debug;
    QString m_text;
};

#pragma once

#include "inspection/log/LogLines.h"

#include <QAbstractTableModel>

/// A log file as it grows. Reading is left to the caller, in pieces. Of a long entry only the
/// beginning is shown.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Level,
        Text,
        ColumnCount
    };

    /// The entry's level as an int, for filters.
    static constexpr int LevelRole = Qt::UserRole;
    /// The whole entry as it stands in the file.
    static constexpr int LineRole = Qt::UserRole + 1;

    explicit LogModel(const QString& file, QObject* parent = nullptr);

    /// Reads the next piece of the file; false when there is nothing more for now. A file that has
    /// become shorter is read from its start.
    bool readMore();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    static QString levelName(LogEntry::Level level);

private:
    QByteArray nextPiece();
    QVariant text(const LogEntry& entry, int column) const;

    QString m_file;
    qint64 m_position = 0;
    LogLines m_lines;
    int m_shown = 0; ///< entries that the views know of
};

#pragma once

#include "inspection/files/FileSearch.h"
#include "window/KeptPlace.h"
#include "window/RecordsModel.h"

#include <QTableView>

#include <memory>

/// The table of what a directory search has found.
class FoundTable : public QTableView
{
    Q_OBJECT

public:
    explicit FoundTable(QWidget* parent = nullptr);

    const std::vector<FoundEntry>& entries() const { return m_entries->records(); }
    void clear();
    void append(std::vector<FoundEntry> entries);
    /// Shows what a new search for the same pattern has found. What is selected and where the table
    /// is scrolled to stays; nothing is told of that.
    void replace(std::vector<FoundEntry> entries);
    /// What is selected and where the table is scrolled to.
    KeptPlace place();
    /// Goes back there; nothing is told of that.
    void restore(const KeptPlace& place);
    /// Makes the entry of this name the current one where there is one.
    void choose(const QString& name);

    /// Dims the rows: they answer to another pattern than the one that is typed.
    void setOutdated(bool outdated);

signals:
    /// There is another current entry.
    void chosen(const QString& name);
    /// A folder is to be entered.
    void folderOpened(const QString& name);
    void parentRequested();

private:
    void addActions();
    void tellChosen(const QModelIndex& current);
    void openFolder(const QModelIndex& index);

    std::shared_ptr<bool> m_isOutdated; ///< shared with the columns
    RecordsModel<FoundEntry>* m_entries;
    bool m_isRestoring = false;
};

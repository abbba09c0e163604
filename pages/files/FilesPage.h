#pragma once

#include "inspection/files/FileSearch.h"
#include "window/Page.h"
#include "window/RecordsModel.h"

class EmptyHint;
class FileSearchJob;
class PathPanel;
class QLayout;
class QLineEdit;
class QTableView;

/// Directory searches, and what the directory service says of single paths.
class FilesPage : public Page
{
    Q_OBJECT

public:
    explicit FilesPage(QWidget* parent = nullptr);

    /// Searches again for the last pattern, and asks about the path again.
    void refresh() override;
    void find() override;

private:
    QLayout* makeSearchRow();
    QTableView* makeTable();
    void browse();
    void search();
    void finish(const FileSearchJob& job, bool complete);
    void showCurrent();

    QLineEdit* m_pattern;
    RecordsModel<FoundEntry>* m_entries;
    QTableView* m_table;
    EmptyHint* m_hint;
    PathPanel* m_paths;
    QString m_searched; ///< the pattern of the rows in the table
};

#pragma once

#include "inspection/files/DirectoryReadAhead.h"
#include "inspection/files/FileSearch.h"
#include "window/Page.h"

#include <memory>
#include <optional>

class EmptyHint;
class FoundEntriesModel;
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
    void readAhead();
    bool step();
    void finish(bool complete);
    QString remark() const;
    void showCurrent();

    QLineEdit* m_pattern;
    FoundEntriesModel* m_model;
    QTableView* m_table;
    EmptyHint* m_hint;
    PathPanel* m_paths;
    std::optional<DirectoryReadAhead> m_readAhead; ///< of the last search, before which it is done
    std::unique_ptr<FileSearch> m_search;
    QString m_searched; ///< the pattern of the rows in the table
};

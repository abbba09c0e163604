#pragma once

#include "inspection/files/FileSearch.h"
#include "window/Page.h"

#include <functional>

class EmptyHint;
class FileSearchJob;
class FoundTable;
class PathPanel;
class QLayout;
class QLineEdit;
class SearchFollower;

/// Directory searches, and what the directory service says of single paths.
class FilesPage : public Page
{
    Q_OBJECT

public:
    explicit FilesPage(QWidget* parent = nullptr);

    /// Searches again for the last pattern, and asks about the path again.
    void refresh() override;
    void find() override;
    /// Searches for the place, which is a pattern or a path.
    void showPlace(const PlaceRequest& request) override;

protected:
    void lookForChanges() override;

private:
    QLayout* makeSearchRow();
    void connectTable();
    void browse();
    void search();
    /// `goThere` chooses among what has been found.
    void searchFor(
        const QString& pattern, const std::function<void()>& goThere = [] {});
    void finish(const FileSearchJob& job, bool complete);
    void showAgain(const FileSearchJob& job, const std::vector<FoundEntry>& entries);
    QString foundText(const FileSearchJob& job);
    QString folder() const;
    void openFolder(const QString& name);
    void openParent();
    void followPattern();

    QLineEdit* m_pattern;
    FoundTable* m_table;
    EmptyHint* m_hint;
    PathPanel* m_paths;
    SearchFollower* m_follower;
    QString m_searched; ///< the pattern of the rows in the table
    QString m_typed;    ///< as it was typed
    QString m_found;    ///< what was told of the rows
};

#pragma once

#include "trace/reading/CallSubject.h"
#include "window/PlaceRequest.h"

#include <QPushButton>

#include <functional>
#include <optional>

class QAction;
class QTableView;

/// "Show": goes to the key, the profile or the files that the current row of a table is about, on
/// the page for them. Enter in the table and its context menu do the same.
class SubjectButton : public QPushButton
{
    Q_OBJECT

public:
    /// What the row with that number is about.
    using SubjectOf = std::function<std::optional<trace::CallSubject>(int row)>;

    /// The table has its model, and outlives the button.
    SubjectButton(QTableView& table, SubjectOf subjectOf, QWidget* parent = nullptr);

    /// To be called where the current row has become about something else.
    void refreshState();

signals:
    void placeRequested(const PlaceRequest& request);

private:
    void ask();

    QTableView& m_table;
    SubjectOf m_subjectOf;
    QAction* m_action;
    std::optional<trace::CallSubject> m_subject; ///< of the current row
};

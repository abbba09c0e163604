#pragma once

#include "trace/reading/Leaks.h"
#include "window/PlaceRequest.h"
#include "window/RecordsModel.h"

#include <QWidget>

class EmptyHint;
class QLabel;
class QTableView;
class SubjectButton;

/// What was made and never given back, with the calls that made it.
class LeaksPane : public QWidget
{
    Q_OBJECT

public:
    explicit LeaksPane(QWidget* parent = nullptr);

    /// `hasEnded` is whether the program came to its end as it meant to.
    void setLeaks(const trace::Leaks& leaks, bool hasEnded);

signals:
    void placeRequested(const PlaceRequest& request);

private:
    void makeTable();

    RecordsModel<trace::Leaks::Leak>* m_leaks;
    QTableView* m_table;
    EmptyHint* m_hint;
    QLabel* m_note;
    SubjectButton* m_show;
};

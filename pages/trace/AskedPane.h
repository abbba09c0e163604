#pragma once

#include "trace/reading/Statistics.h"
#include "window/PlaceRequest.h"
#include "window/RecordsModel.h"

#include <QWidget>

class EmptyHint;
class QCheckBox;
class QTableView;
class SubjectButton;

/// The keys, values, entries and files that were asked for and were not there.
class AskedPane : public QWidget
{
    Q_OBJECT

public:
    explicit AskedPane(QWidget* parent = nullptr);

    void setStatistics(const trace::Statistics& statistics);

signals:
    void placeRequested(const PlaceRequest& request);

private:
    void makeTable();
    void showRows();

    std::vector<trace::Statistics::AskedCount> m_all;
    RecordsModel<trace::Statistics::AskedCount>* m_asked;
    QTableView* m_table;
    EmptyHint* m_hint;
    QCheckBox* m_withPresent;
    SubjectButton* m_show;
};

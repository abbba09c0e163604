#pragma once

#include "trace/reading/OpenRecording.h"
#include "window/PlaceRequest.h"
#include "window/RecordsModel.h"

#include <QWidget>

#include <memory>

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

    /// Shows what calls of the recording have asked for so far.
    void showAsked(std::shared_ptr<trace::OpenRecording> recording);

signals:
    void placeRequested(const PlaceRequest& request);

private:
    void makeTable();
    void showRows();

    /// Records are places in the statistics, which may have very many.
    using Places = RecordsModel<std::size_t>;

    std::vector<RecordColumn<std::size_t>> columns() const;
    RecordColumn<std::size_t> counted(const QString& title,
                                      qint64 trace::Statistics::AskedCount::*number) const;
    trace::Statistics::AskedCount asked(std::size_t place) const;

    std::shared_ptr<trace::OpenRecording> m_recording;
    Places* m_asked;
    QTableView* m_table;
    EmptyHint* m_hint;
    QCheckBox* m_withPresent;
    SubjectButton* m_show;
};

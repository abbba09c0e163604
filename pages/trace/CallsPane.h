#pragma once

#include "trace/reading/CallSubject.h"
#include "trace/reading/OpenRecording.h"
#include "window/PlaceRequest.h"

#include <QWidget>

class CallFilterBar;
class CallPane;
class CallTable;
class SubjectButton;

/// The calls of a recording: which of them, a row each, and all of the one that is chosen.
class CallsPane : public QWidget
{
    Q_OBJECT

public:
    explicit CallsPane(QWidget* parent = nullptr);

    void setRecording(std::shared_ptr<trace::OpenRecording> recording);
    /// Shows what has been read meanwhile, from the call with that number on.
    void follow(qint64 changed);
    bool isSearching() const;
    /// Goes to the text that is looked for.
    void find();

signals:
    void placeRequested(const PlaceRequest& request);

private:
    void connectParts();
    void search();
    void showCount();
    void showCall();
    std::optional<trace::CallSubject> currentSubject() const;
    /// Null where no call is chosen.
    const trace::CallEntry* currentEntry() const;

    std::shared_ptr<trace::OpenRecording> m_recording;
    CallFilterBar* m_filter;
    CallTable* m_table;
    CallPane* m_call;
    SubjectButton* m_show;
};

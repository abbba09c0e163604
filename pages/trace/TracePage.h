#pragma once

#include "platform/files/FileStamp.h"
#include "trace/reading/RecordingJob.h"
#include "window/Page.h"

#include <memory>

class AskedPane;
class CallsPane;
class LeaksPane;
class OperationsPane;
class QTabWidget;
class RecordingBar;

/// A recording of what host libraries asked the services, which may still be written: its calls,
/// and what they come to.
class TracePage : public Page
{
    Q_OBJECT

public:
    explicit TracePage(QWidget* parent = nullptr);
    ~TracePage() override;

    /// Opens a recording, or tells why not and keeps the one that is open.
    void openFile(const QString& path) override;
    /// Opens the recording once more.
    void refresh() override;
    void find() override;

    /// True while calls are looked for among those of the recording.
    bool isSearching() const;

protected:
    /// Reads on where something has been written.
    void lookForChanges() override;

private:
    using Recording = std::shared_ptr<trace::OpenRecording>;

    bool isRefused(const QString& path);
    void read(const QString& path);
    void showRecording(const QString& path, const Recording& recording);
    void showComings();
    void showTab();
    void finishFollowing();
    QString counts() const;

    RecordingBar* m_file;
    QTabWidget* m_tabs;
    CallsPane* m_calls;
    OperationsPane* m_operations;
    LeaksPane* m_leaks;
    AskedPane* m_asked;
    QString m_path;        ///< of the open recording; empty where none is
    Recording m_recording; ///< null where none is open
    FileStamp m_stamp;     ///< of its file
    std::unique_ptr<trace::RecordingJob> m_following; ///< while something is read on
    JobRunner m_follower;
};

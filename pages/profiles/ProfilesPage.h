#pragma once

#include "inspection/JobRunner.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReadingJob.h"
#include "inspection/profiles/ProfileWriter.h"
#include "platform/files/FileStamp.h"
#include "window/Page.h"

#include <memory>
#include <optional>

class ProfileEditPanel;
class ProfileEditor;
class ProfileFileBar;
class ProfileLinesPane;
class ProfileReadingsPane;

/// A profile (INI file): how each of the two families of calls reads its lines, and writing through
/// either of them.
class ProfilesPage : public Page
{
    Q_OBJECT

public:
    explicit ProfilesPage(QWidget* parent = nullptr);
    ~ProfilesPage() override;

    /// Opens a file and chooses a name in it, or refuses it, keeps the one that is open and leaves
    /// what is typed.
    void open(const QString& path, const std::optional<ProfileDocument::Name>& name = std::nullopt);

    void openFile(const QString& path) override;
    /// Opens a profile, and chooses the entry of the section and the name that are given.
    void showPlace(const PlaceRequest& request) override;

    /// Reads the file again.
    void refresh() override;
    void find() override;

protected:
    /// Reads the file again where it is no longer the one that was read.
    void lookForChanges() override;

    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What is chosen again when the file has been read again.
    struct Place
    {
        int line = -1;                             ///< the chosen line, from 0 on, or -1
        QString text;                              ///< of that line, which has to read so still
        std::optional<ProfileDocument::Name> name; ///< of the chosen reading
        int linesPosition = 0;
        int readingsPosition = 0;
    };

    void addKey(int key, const QString& text, void (ProfilesPage::*operation)());
    void findNext();
    void nextDifference();
    bool isRefused(const QString& path);
    bool hasChanged();
    void read(const QString& path);
    std::unique_ptr<ProfileReadingJob> makeReadingJob(const QString& path);
    void showDocument(std::shared_ptr<const ProfileDocument> document, int wanted);
    void addReading(int name, const ProfileReading& reading);
    void finish(const ProfileReadingJob& job, bool complete);
    void finishReread();
    void stopReread();
    Place currentPlace() const;
    void restorePlace(bool complete);
    void showLine(int line);
    void showName(int name);
    void showReading(int name);
    void updateReading(int name, const ProfileReading& reading);
    void connectEditor();
    void change(ProfileChange::Action action);
    void deleteName(int name);
    void showWritten(const ProfileChange& change, const QString& summary, bool isAsShown);
    void showRestored(const QString& path, const QString& summary);

    ProfileFileBar* m_file;
    ProfileLinesPane* m_lines;
    ProfileReadingsPane* m_readings;
    ProfileEditPanel* m_panel;
    ProfileEditor* m_editor;
    QString m_path; ///< of the open file; empty where none is
    std::shared_ptr<const ProfileDocument> m_document;
    FileStamp m_stamp;        ///< of the file that is shown
    FileStamp m_readingStamp; ///< of the file that is being read
    Place m_place;
    int m_wanted = -1;          ///< the name of m_place in the document, or -1
    bool m_isRestoring = false; ///< true while m_place is being chosen again
    QString m_summary;          ///< what was written, to be reported together with the readings
    Report m_summaryKind = Report::Info;
    // The file has changed, and is read again while the page goes on.
    std::unique_ptr<ProfileReadingJob> m_reread;
    JobRunner m_rereader;
};

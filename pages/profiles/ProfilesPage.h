#pragma once

#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReading.h"
#include "inspection/profiles/ProfileWriter.h"
#include "window/Page.h"
#include "window/RecordsModel.h"

#include <optional>

class ProfileEditPanel;
class ProfileEditor;
class ProfileFindBar;
class ProfileLinesModel;
class ProfileReadingJob;
class QLayout;
class QLineEdit;
class QTableView;

/// A profile (INI file): how each of the two families of calls reads its lines, and writing through
/// either of them.
class ProfilesPage : public Page
{
    Q_OBJECT

public:
    explicit ProfilesPage(QWidget* parent = nullptr);

    /// Opens a file, or refuses it and keeps the one that is open.
    void open(const QString& path);

    /// Reads the file again.
    void refresh() override;
    void find() override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What is chosen again when the file has been read again.
    struct Place
    {
        int line = -1;                             ///< row of the chosen line, or -1
        QString text;                              ///< of that line, which has to read so still
        std::optional<ProfileDocument::Name> name; ///< of the chosen reading
    };

    QLayout* makeFileRow();
    QTableView* makeLines();
    QTableView* makeReadings();
    void addEditAction();
    void addFindBar();
    void findNext();
    void chooseFile();
    void read(const QString& path);
    void showDocument(ProfileDocument document);
    void addReading(ProfileReading reading);
    void finish(const ProfileReadingJob& job, bool complete);
    QString counts() const;
    int rowOf(const ProfileDocument::Name& name) const;
    Place currentPlace() const;
    void restorePlace(bool complete);
    void showLine();
    void chooseReadingOf(const ProfileDocument::Line& line);
    void showReading();
    void connectEditor();
    void change(ProfileChange::Action action);
    void deleteReading();
    void showWritten(const ProfileChange& change, const QString& summary);
    void showRestored(const QString& path, const QString& summary);

    QLineEdit* m_file;
    ProfileLinesModel* m_linesModel;
    RecordsModel<ProfileReading>* m_readingsModel;
    QTableView* m_lines;
    QTableView* m_readings;
    ProfileEditPanel* m_panel;
    ProfileFindBar* m_find;
    ProfileEditor* m_editor;
    QString m_path; ///< of the open file; empty where none is
    bool m_exists = false;
    Place m_place;
    bool m_isRestoring = false; ///< true while m_place is being chosen again
    QString m_summary;          ///< what was written, to be reported together with the readings
};

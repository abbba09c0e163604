#pragma once

#include "app/pages/Page.h"
#include "app/pages/profiles/ProfileDocument.h"
#include "app/pages/profiles/ProfileWriter.h"

class EmptyHint;
class ProfileEditPanel;
class ProfileFindBar;
class ProfileLinesModel;
class ProfileReadingsModel;
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
    QLayout* makeFileRow();
    QTableView* makeLines();
    QTableView* makeReadings();
    void addEditAction();
    void addFindBar();
    void findNext();
    void chooseFile();
    void read(const QString& path);
    void load(const QString& path);
    void readStep();
    void finish(bool complete);
    void showLine();
    void showReading();
    void write();
    void writeNow(const ProfileChange& change);

    QLineEdit* m_file;
    ProfileDocument m_document;
    ProfileLinesModel* m_linesModel;
    ProfileReadingsModel* m_readingsModel;
    QTableView* m_lines;
    QTableView* m_readings;
    ProfileEditPanel* m_panel;
    ProfileFindBar* m_find;
    std::vector<ProfileDocument::Name> m_names; ///< still to be asked for, the next one last
    QString m_summary;                          ///< reported with the readings, once they are there
};

#pragma once

#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileWriter.h"
#include "window/Page.h"

#include <memory>
#include <optional>

class EmptyHint;
class ProfileEditPanel;
class ProfileFindBar;
class ProfileLinesModel;
class ProfileLoading;
class ProfileReadingsModel;
class ProfileDryRun;
class ProfileWriting;
class QLayout;
class QLineEdit;
class QTableView;
class ParsedProfileCache;

/// A profile (INI file): how each of the two families of calls reads its lines, and writing through
/// either of them.
class ProfilesPage : public Page
{
    Q_OBJECT

public:
    explicit ProfilesPage(QWidget* parent = nullptr);
    ~ProfilesPage() override;

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
    bool readStep();
    void loadStep();
    void showDocument(ProfileLoading& loading);
    void readNext();
    QString progress() const;
    void finish(bool complete);
    int rowOf(const ProfileDocument::Name& name) const;
    void keepPlace();
    void restorePlace(bool complete);
    void showLine();
    void showReading();
    void write();
    void tryOut(const ProfileChange& change);
    void judge(const ProfileDryRun& trial);
    void writeAsJudged(const ProfileChange& change, const QByteArray& judged);
    void writeNow(const ProfileChange& change);
    void finishWriting(const ProfileWriting& writing, const QString& backup, bool complete);

    QLineEdit* m_file;
    ProfileDocument m_document;
    std::unique_ptr<ProfileLoading> m_loading;  ///< while a file is taken apart
    std::unique_ptr<ParsedProfileCache> m_hold; ///< while the families are asked
    ProfileLinesModel* m_linesModel;
    ProfileReadingsModel* m_readingsModel;
    QTableView* m_lines;
    QTableView* m_readings;
    ProfileEditPanel* m_panel;
    ProfileFindBar* m_find;
    std::vector<ProfileDocument::Name> m_names;      ///< still to be asked for, the next one last
    std::optional<ProfileDocument::Name> m_keptName; ///< the reading to be chosen again
    int m_keptLine = -1;                             ///< the line to be chosen again, or -1
    QString m_keptText;                              ///< only if it still reads so
    bool m_isRestoring = false;                      ///< while they are
    QString m_summary; ///< reported with the readings, once they are there
};

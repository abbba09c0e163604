#pragma once

#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReading.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class PageContext;
class ProfileAskingJob;
class ProfileReadingQueue;
class EmptyHint;
class ProfileReadingsModel;
class QCheckBox;
class QLayout;
class QPushButton;
class QTableView;

/// What both families read under the names of a profile, side by side, and the ways through the
/// differences. Of a large profile only those names are asked for that are in view or chosen, or
/// all of them when the user wants it.
class ProfileReadingsPane : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileReadingsPane(PageContext& page, QWidget* parent = nullptr);

    /// Shows another document, of which nothing has been read.
    void setDocument(std::shared_ptr<const ProfileDocument> document);
    void setReading(int name, const ProfileReading& reading);
    ProfileReading reading(int name) const;

    /// The chosen name of the document, or -1.
    int chosenName() const;
    /// Chooses a name without emitting anything.
    void chooseName(int name);

    /// How many values there are, and how many of them are read differently, in words.
    QString counts() const;

    /// How far the table is scrolled, and back there.
    int scrollPosition() const;
    void scrollTo(int position);

    /// Puts the rows in their order again when many answers have come.
    void arrangeAgain();

    /// Asks the families for all names.
    void readAll();
    /// Goes to the next name that the families read differently, asking for those before it.
    void nextDifference();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void nameChosen(int name);
    /// The families have been asked for a name that is shown already: to be passed to setReading().
    void answered(int name, const ProfileReading& reading);
    void editRequested();
    /// The chosen name is to be deleted.
    void deletionRequested(int name);

private:
    QLayout* makeButtonRow();
    void makeTable();
    void addEditAction();
    void addDeleteAction();
    void askForRowsInView();
    std::vector<int> namesInView() const;
    std::unique_ptr<ProfileAskingJob> makeAsking(std::function<int()> next);
    void showOnlyDifferences(bool only);
    void findDifference(int from, bool isAgain);
    void updateButtons();
    void updateHint();

    PageContext& m_page;
    ProfileReadingsModel* m_model;
    QTableView* m_table;
    EmptyHint* m_hint;
    QCheckBox* m_onlyDifferences;
    QPushButton* m_next;
    QPushButton* m_all;
    ProfileReadingQueue* m_queue;
    QTimer m_soon; ///< until the rows in view are asked for
};

#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QWidget>

#include <memory>

class PageContext;
class ProfileEncodingBox;
class ProfileFindBar;
class ProfileFindJob;
class ProfileLinesModel;
class QLabel;
class QLayout;
class QTableView;

/// The lines of a profile with the form of the file above them, and the search in them.
class ProfileLinesPane : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileLinesPane(PageContext& page, QWidget* parent = nullptr);

    void setDocument(std::shared_ptr<const ProfileDocument> document);
    /// See ProfileLinesModel::setNotFound.
    void setNotFound(int line);

    /// The chosen line, from 0 on, or -1.
    int chosenLine() const;
    /// Chooses a line without emitting anything.
    void chooseLine(int line);
    QString text(int line) const;
    /// What either family makes of a line, in words.
    QString description(int line) const;

    /// How far the lines are scrolled, and back there.
    int scrollPosition() const;
    void scrollTo(int position);

    bool hasLines() const;
    /// Shows the field for the text; there have to be lines.
    void find();
    /// Goes to the next line that holds the text.
    void findNext();

signals:
    void lineChosen(int line);

private:
    QLayout* makeFormRow();
    void makeLines();
    void showForm();
    void showCodec();
    void finishSearch(const ProfileFindJob& job, bool complete, const QString& text);

    PageContext& m_page;
    ProfileLinesModel* m_model;
    QLabel* m_form;
    QLabel* m_encodingLabel;
    ProfileEncodingBox* m_encoding;
    ProfileFindBar* m_find;
    QTableView* m_table;
};

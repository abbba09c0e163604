#pragma once

#include "inspection/registry/RegistrySearchJob.h"
#include "window/RecordsModel.h"

#include <QWidget>

class EmptyHint;
class PageContext;
class QCheckBox;
class QLineEdit;
class QTableView;

/// The search: a line for the text, where to look and how, and the table of what was found.
class FindPane : public QWidget
{
    Q_OBJECT

public:
    explicit FindPane(PageContext& page, QWidget* parent = nullptr);

    /// Shows itself and takes the keyboard, with the text selected.
    void open();
    /// Goes to the place that was found behind the one that was shown last, or before it; at the
    /// end it begins again. Opens itself where nothing has been found, and searches anew where
    /// something else is asked by now.
    void showNext();
    void showPrevious();

signals:
    /// A place that was found is to be shown: a value, or the key where `name` is empty.
    void chosen(const QString& path, const QString& name);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeLine();
    QWidget* makeOptions();
    void makeTable();
    RegistrySearchJob::Query query() const;
    void step(int by);
    void search();
    void start();
    void showFound(const RegistrySearchJob& search, bool complete);
    void choose(const QModelIndex& index);
    void close();

    PageContext& m_page;
    RecordsModel<RegistrySearchJob::Hit>* m_hits;
    QLineEdit* m_text;
    QCheckBox* m_inKeys;
    QCheckBox* m_inNames;
    QCheckBox* m_inData;
    QCheckBox* m_mindsCase;
    QCheckBox* m_wholeWords;
    QTableView* m_table;
    EmptyHint* m_hint;
    RegistrySearchJob::Query m_asked; ///< what the table answers
    bool m_isShown = false;           ///< the place of the current row has been gone to
};

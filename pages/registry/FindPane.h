#pragma once

#include "inspection/registry/RegistrySearchJob.h"
#include "window/RecordsModel.h"

#include <QWidget>

class EmptyHint;
class PageContext;
class QCheckBox;
class QLineEdit;
class QTableView;

/// The search: a line for the text, where to look, and the table of what was found.
class FindPane : public QWidget
{
    Q_OBJECT

public:
    explicit FindPane(PageContext& page, QWidget* parent = nullptr);

    /// Shows itself and takes the keyboard, with the text selected.
    void open();

signals:
    /// A place that was found is to be shown: a value, or the key where `name` is empty.
    void chosen(const QString& path, const QString& name);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeLine();
    void makeTable();
    void search();
    void start();
    void showFound(const RegistrySearchJob& search, bool complete);
    void choose(const QModelIndex& index);
    void close();

    PageContext& m_page;
    RecordsModel<RegistrySearchJob::Hit>* m_hits;
    QLineEdit* m_text;
    QCheckBox* m_inNames;
    QCheckBox* m_inData;
    QTableView* m_table;
    EmptyHint* m_hint;
};

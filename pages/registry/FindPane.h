#pragma once

#include "inspection/registry/RegistrySearchJob.h"

#include <QWidget>

class EmptyHint;
class HitModel;
class QCheckBox;
class QLineEdit;
class QTableView;

/// The search: a line for the text, where to look, and the table of what was found.
class FindPane : public QWidget
{
    Q_OBJECT

public:
    explicit FindPane(QWidget* parent = nullptr);

    /// Shows itself and takes the keyboard, with the text selected.
    void open();
    void setHits(const std::vector<RegistrySearchJob::Hit>& hits);

signals:
    /// The text is not empty, and one of the places is chosen.
    void searchRequested(const QString& text, bool inNames, bool inData);
    /// What is missing for a search, in words.
    void refused(const QString& why);
    void chosen(const QString& path, const QString& name);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeLine();
    void request();
    void close();

    HitModel* m_model;
    QLineEdit* m_text;
    QCheckBox* m_inNames;
    QCheckBox* m_inData;
    QTableView* m_table;
    EmptyHint* m_hint;
};

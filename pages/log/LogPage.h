#pragma once

#include "inspection/log/LogReader.h"
#include "window/Page.h"

class LogFilter;
class LogSavingJob;
class LogTable;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

/// The application's log file, live: earlier runs first, new lines as they are written.
class LogPage : public Page
{
    Q_OBJECT

public:
    explicit LogPage(QWidget* parent = nullptr);

    void refresh() override;
    void find() override;

    /// Writes the lines in view to a file, as they stand in the log.
    void saveAs(const QString& file);

protected:
    /// Another process may write to the same log.
    void lookForChanges() override;

private:
    void makeTable();
    QLayout* makeControls();
    QLayout* makeFooter();
    void readNew();
    void showCount();
    void askSave();
    void reportSaving(const LogSavingJob& job, const QString& file, bool complete);

    LogTable* m_entries;
    LogReader m_reader;
    LogFilter* m_filter;
    QTableView* m_table;
    QComboBox* m_level;
    QLineEdit* m_text;
    QLabel* m_count;
};

#include "pages/log/LogPage.h"

#include "app/ApplicationLog.h"
#include "inspection/log/LogReadingJob.h"
#include "inspection/log/LogSavingJob.h"
#include "pages/log/LogFilter.h"
#include "pages/log/LogTable.h"
#include "pages/log/TailFollower.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/FileDialog.h"
#include "window/PathLabel.h"
#include "window/ViewLook.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace {

QString lostText()
{
    return LogPage::tr("The log cannot be written to %1.").arg(ApplicationLog::path());
}

// Writing the log itself anew would cut it off from the lines that are still to come.
bool isLog(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return !file.isEmpty() && file == QFileInfo(ApplicationLog::path()).canonicalFilePath();
}

} // namespace

LogPage::LogPage(QWidget* parent)
    : Page(parent),
      m_entries(new LogTable(this)),
      m_reader(ApplicationLog::path(),
               [this](LogPiece piece) { m_entries->add(std::move(piece)); }),
      m_filter(new LogFilter(*m_entries, this)),
      m_table(new QTableView),
      m_level(new QComboBox),
      m_text(new QLineEdit),
      m_count(new QLabel)
{
    makeTable();
    body()->addLayout(makeControls());
    body()->addWidget(m_table, 1);
    body()->addLayout(makeFooter());
    setFocusProxy(m_level);
    new TailFollower(m_table);
    connect(&ApplicationLog::instance(), &ApplicationLog::written, this, &LogPage::readNew);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &LogPage::showCount);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &LogPage::showCount);
    if (!ApplicationLog::isWritable())
        setStatus(lostText()); // a report would be lost as well
    refresh();
}

void LogPage::makeTable()
{
    m_table->setModel(m_filter);
    arrangeTable(*m_table);
    m_table->setAccessibleName(tr("Log"));
    ColumnFit::of(*m_table).setSamples(
        {QStringLiteral("2000-00-00 00:00:00"), QStringLiteral("[x] Information")});
    new EmptyHint(m_table, ApplicationLog::isWritable()
                               ? tr("No line of the log has this level and this text.")
                               : lostText());
}

QLayout* LogPage::makeControls()
{
    m_level->setAccessibleName(tr("Lowest level shown"));
    m_level->addItem(tr("Everything"), static_cast<int>(LogEntry::Level::Debug));
    m_level->addItem(tr("Information and above"), static_cast<int>(LogEntry::Level::Info));
    m_level->addItem(tr("Warnings and errors"), static_cast<int>(LogEntry::Level::Warning));
    m_level->addItem(tr("Errors"), static_cast<int>(LogEntry::Level::Error));
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setPlaceholderText(tr("Text to find"));
    m_text->setClearButtonEnabled(true);
    auto* caption = new QLabel(tr("&Show:"));
    caption->setBuddy(m_level);
    auto* save = glowing(new QPushButton(tr("Sa&ve as...")));
    auto* line = new QHBoxLayout;
    line->addWidget(caption);
    line->addWidget(m_level);
    line->addWidget(m_text, 1);
    line->addWidget(save);
    connect(m_level, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        m_filter->setLowest(static_cast<LogEntry::Level>(m_level->currentData().toInt()));
        showCount();
    });
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filter->setText(text);
        showCount();
    });
    connect(save, &QPushButton::clicked, this, &LogPage::askSave);
    return line;
}

QLayout* LogPage::makeFooter()
{
    auto* line = new QHBoxLayout;
    line->addWidget(m_count);
    line->addStretch();
    line->addWidget(new QLabel(tr("File:")));
    auto* file = new PathLabel(ApplicationLog::path());
    file->setCaption(tr("File:"));
    line->addWidget(file);
    return line;
}

void LogPage::refresh()
{
    startJob(tr("Reading the log"), std::make_unique<LogReadingJob>(m_reader),
             [this](LogReadingJob&, bool) {
                 showCount();
                 markRead();
             });
}

void LogPage::lookForChanges()
{
    if (m_reader.hasNews())
        refresh();
}

void LogPage::find()
{
    m_text->setFocus();
    m_text->selectAll();
}

void LogPage::readNew()
{
    if (isBusy())
        return;
    m_reader.readMore();
    markRead();
}

void LogPage::showCount()
{
    m_count->setText(
        tr("Lines shown: %L1 of %L2").arg(m_filter->rowCount()).arg(m_entries->rowCount()));
}

void LogPage::askSave()
{
    auto* dialog = new FileDialog(this, tr("Save the lines shown"), "log");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Log files (*.log)"), tr("All files (*)")});
    dialog->setDefaultSuffix(QStringLiteral("log"));
    dialog->selectFile(QStringLiteral("quayside.log"));
    connect(dialog, &QFileDialog::fileSelected, this, &LogPage::saveAs);
    dialog->open();
}

void LogPage::saveAs(const QString& path)
{
    if (isLog(path))
        return report(Report::Error, tr("%1 was not written: this is the log itself.").arg(path));
    startJob(tr("Saving"),
             std::make_unique<LogSavingJob>(path, m_filter->rowCount(),
                                            [this](int row) { return m_filter->entry(row).line; }),
             [this, path](const LogSavingJob& job, bool complete) {
                 reportSaving(job, path, complete);
             });
}

void LogPage::reportSaving(const LogSavingJob& job, const QString& file, bool complete)
{
    if (!complete)
        report(Report::Warning, tr("Nothing was saved."));
    else if (job.error().isEmpty())
        report(Report::Info, tr("Saved to %2. Lines: %L1.").arg(job.written()).arg(file));
    else
        report(Report::Error, tr("%1 could not be written: %2").arg(file, job.error()));
}

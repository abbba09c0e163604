#include "pages/files/FilesPage.h"

#include "inspection/files/FileAttributes.h"
#include "inspection/files/FileSearchJob.h"
#include "inspection/files/FoundEntryText.h"
#include "pages/files/PathPanel.h"
#include "platform/PlatformServicesImp.h"
#include "window/EmptyHint.h"
#include "window/FaintText.h"
#include "window/ViewLook.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Column = RecordColumn<FoundEntry>;
using Text = std::function<QString(const FoundEntry& entry)>;

// A column of what the service writes for some entries only; its tool tip shows the record's
// fields.
Column detail(const QString& title, const Text& text, const Text& raw)
{
    return {title, text, [raw](const FoundEntry& entry, int role) -> QVariant {
                if (role == Qt::ToolTipRole)
                    return plainToolTip(raw(entry));
                if (role == Qt::ForegroundRole && !entry.details)
                    return faintText();
                return {};
            }};
}

Column time(const QString& title, FoundEntryText::Time field)
{
    return detail(
        title, [field](const FoundEntry& entry) { return FoundEntryText::time(entry, field); },
        [field](const FoundEntry& entry) { return FoundEntryText::rawTime(entry, field); });
}

std::vector<Column> columns()
{
    return {{FilesPage::tr("Name"), [](const FoundEntry& entry) { return entry.name; }},
            {FilesPage::tr("Attributes"),
             [](const FoundEntry& entry) { return attributesText(entry.attributes); }},
            detail(FilesPage::tr("Size"), &FoundEntryText::size, &FoundEntryText::rawSize),
            time(FilesPage::tr("Last written"), &FoundDetails::lastWrite),
            time(FilesPage::tr("Created"), &FoundDetails::creation),
            time(FilesPage::tr("Last accessed"), &FoundDetails::lastAccess)};
}

QString joined(const QString& sentence, const QString& remark)
{
    return remark.isEmpty() ? sentence : sentence + u' ' + remark;
}

} // namespace

FilesPage::FilesPage(QWidget* parent)
    : Page(parent),
      m_pattern(new QLineEdit),
      m_entries(new RecordsModel<FoundEntry>(columns(), this)),
      m_table(makeTable()),
      m_paths(new PathPanel(*g_PlatformServices.directoryManager()))
{
    m_hint = new EmptyHint(m_table, tr("Type a pattern, such as /etc/*.conf, and press Enter: here "
                                       "stands what findFirstFile and findNextFile report."));
    body()->addLayout(makeSearchRow());
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_paths);
    splitter->setStretchFactor(0, 1);
    body()->addWidget(splitter, 1);
    setFocusProxy(m_pattern);
}

QLayout* FilesPage::makeSearchRow()
{
    m_pattern->setObjectName(QStringLiteral("pattern"));
    m_pattern->setAccessibleName(tr("Search pattern"));
    m_pattern->setText(QDir::homePath() + QStringLiteral("/*"));
    auto* label = new QLabel(tr("Pa&ttern:"));
    label->setBuddy(m_pattern);
    auto* browse = glowing(new QPushButton(tr("&Browse...")));
    browse->setAccessibleName(tr("Choose a folder to search"));
    auto* search = glowing(new QPushButton(tr("Fi&nd")));
    search->setObjectName(QStringLiteral("search"));
    search->setAccessibleName(tr("Find"));
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_pattern, 1);
    row->addWidget(search);
    row->addWidget(browse);
    connect(m_pattern, &QLineEdit::returnPressed, this, &FilesPage::search);
    connect(search, &QPushButton::clicked, this, &FilesPage::search);
    connect(browse, &QPushButton::clicked, this, &FilesPage::browse);
    return row;
}

QTableView* FilesPage::makeTable()
{
    auto* table = new QTableView;
    table->setObjectName(QStringLiteral("entries"));
    table->setAccessibleName(tr("Found entries"));
    table->setModel(m_entries);
    arrangeTable(*table);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const QString time = QStringLiteral("2000-00-00 00:00:00");
    fitColumns(*table,
               {QStringLiteral("Name of a file with date.ext"), QStringLiteral("0x10 DIRECTORY"),
                QStringLiteral("999,999,999"), time, time, time});
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FilesPage::showCurrent);
    return table;
}

void FilesPage::refresh()
{
    m_paths->ask();
    if (!m_searched.isEmpty()) {
        m_pattern->setText(m_searched);
        search();
    }
}

void FilesPage::find()
{
    m_pattern->setFocus(Qt::ShortcutFocusReason);
    m_pattern->selectAll();
}

void FilesPage::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Folder to search"), m_pattern->text().section(QLatin1Char('/'), 0, -2));
    if (folder.isEmpty())
        return;
    m_pattern->setText(QDir(folder).filePath(QStringLiteral("*")));
    search();
}

void FilesPage::search()
{
    if (isBusy())
        return;
    const QString refused = FileSearchJob::fault(m_pattern->text());
    if (!refused.isEmpty()) {
        report(Report::Error, refused);
        return;
    }
    m_searched = m_pattern->text();
    m_entries->setRecords({});
    startJob(tr("Searching %1").arg(m_searched),
             std::make_unique<FileSearchJob>(m_searched,
                                             [this](std::vector<FoundEntry> entries) {
                                                 m_entries->append(std::move(entries));
                                             }),
             [this](const FileSearchJob& job, bool complete) { finish(job, complete); });
}

void FilesPage::finish(const FileSearchJob& job, bool complete)
{
    if (!complete) {
        report(Report::Warning, tr("Stopped: %L1 found so far.").arg(job.found()));
    } else if (job.found() == 0) {
        m_hint->setText(tr("The service finds nothing for %1.").arg(m_searched));
        report(Report::Warning, joined(tr("Nothing found for %1.").arg(m_searched), job.remark()));
    } else {
        const QString found =
            tr("%L1 found. Size and times are reported for the first one only, and "
               "only if it is a file; dwReserved0, dwReserved1 and cAlternateFileName "
               "never are.")
                .arg(job.found());
        report(Report::Info, joined(found, job.remark()));
    }
}

void FilesPage::showCurrent()
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const QString folder = m_searched.left(m_searched.lastIndexOf(QLatin1Char('/')) + 1);
    m_paths->setPath(folder + m_entries->record(current.row()).name);
}

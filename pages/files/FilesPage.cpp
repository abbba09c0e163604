#include "pages/files/FilesPage.h"

#include "inspection/files/FileSearchJob.h"
#include "inspection/files/SearchFollower.h"
#include "inspection/files/TypedPath.h"
#include "pages/files/FoundTable.h"
#include "pages/files/PathPanel.h"
#include "platform/PlatformServicesImp.h"
#include "window/EmptyHint.h"
#include "window/FileDialog.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

QString joined(const QString& sentence, const QString& remark)
{
    return remark.isEmpty() ? sentence : sentence + u' ' + remark;
}

} // namespace

FilesPage::FilesPage(QWidget* parent)
    : Page(parent),
      m_pattern(new QLineEdit),
      m_table(new FoundTable),
      m_paths(new PathPanel(*g_PlatformServices.directoryManager())),
      m_follower(new SearchFollower(this))
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
    connectTable();
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
    connect(m_pattern, &QLineEdit::textChanged, this, &FilesPage::followPattern);
    connect(search, &QPushButton::clicked, this, &FilesPage::search);
    connect(browse, &QPushButton::clicked, this, &FilesPage::browse);
    return row;
}

void FilesPage::connectTable()
{
    connect(m_table, &FoundTable::chosen, this,
            [this](const QString& name) { m_paths->setPath(folder() + name); });
    connect(m_table, &FoundTable::folderOpened, this, &FilesPage::openFolder);
    connect(m_table, &FoundTable::parentRequested, this, &FilesPage::openParent);
    connect(m_follower, &SearchFollower::found, this, &FilesPage::showAgain);
}

void FilesPage::refresh()
{
    m_paths->ask();
    if (!m_searched.isEmpty())
        searchFor(m_searched, [this, place = m_table->place()] { m_table->restore(place); });
}

void FilesPage::lookForChanges()
{
    m_paths->lookForChanges();
    m_follower->look();
}

void FilesPage::find()
{
    m_pattern->setFocus(Qt::ShortcutFocusReason);
    m_pattern->selectAll();
}

void FilesPage::showPlace(const PlaceRequest& request)
{
    m_pattern->setText(request.place);
    search();
    m_paths->setPath(request.place);
}

void FilesPage::browse()
{
    auto* dialog = new FileDialog(this, tr("Folder to search"), "files");
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->startAt(typedPath(m_pattern->text()).section(QLatin1Char('/'), 0, -2));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& folder) {
        m_pattern->setText(QDir(folder).filePath(QStringLiteral("*")));
        search();
    });
    dialog->open();
}

void FilesPage::search()
{
    const QString pattern = typedPath(m_pattern->text());
    const QString refused = FileSearchJob::fault(pattern);
    if (!refused.isEmpty())
        return report(Report::Error, refused);
    m_typed = m_pattern->text();
    searchFor(pattern);
}

void FilesPage::searchFor(const QString& pattern, const std::function<void()>& goThere)
{
    if (isBusy())
        return;
    m_searched = pattern;
    m_found.clear();
    m_table->clear();
    followPattern();
    m_follower->begin(pattern);
    startJob(tr("Searching %1").arg(pattern),
             std::make_unique<FileSearchJob>(
                 pattern,
                 [this](std::vector<FoundEntry> entries) { m_table->append(std::move(entries)); }),
             [this, goThere](const FileSearchJob& job, bool complete) {
                 finish(job, complete);
                 goThere();
             });
}

// Of a search that was stopped, the rest is not read by itself later on.
void FilesPage::finish(const FileSearchJob& job, bool complete)
{
    m_found = complete ? foundText(job) : tr("Stopped: %L1 found so far.").arg(job.found());
    report(complete && job.found() > 0 ? Report::Info : Report::Warning, m_found);
    if (m_pattern->text() != m_typed)
        followPattern();
    if (!complete)
        return m_follower->stop();
    if (job.found() > 0)
        m_follower->setFirst(folder() + m_table->entries().front().name);
    markRead();
}

QString FilesPage::foundText(const FileSearchJob& job)
{
    if (job.found() == 0) {
        m_hint->setText(tr("The service finds nothing for %1.").arg(m_searched));
        return joined(tr("Nothing found for %1.").arg(m_searched), job.remark());
    }
    return joined(tr("%L1 found. Size and times are reported for the first one only, and only if "
                     "it is a file; dwReserved0, dwReserved1 and cAlternateFileName never are.")
                      .arg(job.found()),
                  job.remark());
}

// What stands below is kept while another pattern is being typed, and is told of it.
void FilesPage::showAgain(const FileSearchJob& job, const std::vector<FoundEntry>& entries)
{
    markRead();
    m_follower->setFirst(entries.empty() ? QString() : folder() + entries.front().name);
    if (entries == m_table->entries())
        return;
    m_table->replace(entries);
    m_paths->ask();
    m_found = foundText(job);
    if (m_pattern->text() == m_typed)
        setStatus(m_found);
}

QString FilesPage::folder() const
{
    return m_searched.left(m_searched.lastIndexOf(QLatin1Char('/')) + 1);
}

void FilesPage::openFolder(const QString& name)
{
    m_pattern->setText(folder() + name + QStringLiteral("/*"));
    search();
}

// The folder that one comes from is chosen there.
void FilesPage::openParent()
{
    if (isBusy() || folder().isEmpty())
        return;
    const QString path = QDir::cleanPath(QDir(folder()).absolutePath());
    const int separator = path.lastIndexOf(QLatin1Char('/'));
    m_typed = path.left(separator + 1) + QLatin1Char('*');
    m_pattern->setText(m_typed);
    searchFor(m_typed, [this, name = path.mid(separator + 1)] { m_table->choose(name); });
}

// The rows stay until something else has been found, but nobody shall take them for the answer to
// what stands above them.
void FilesPage::followPattern()
{
    const bool isOutdated = !m_searched.isEmpty() && m_pattern->text() != m_typed;
    m_table->setOutdated(isOutdated);
    if (isOutdated)
        setStatus(tr("The rows are still those of %1: press Enter to search for the new pattern.")
                      .arg(m_searched));
    else
        setStatus(m_found);
}

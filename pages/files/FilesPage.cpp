#include "pages/files/FilesPage.h"

#include "pages/files/FoundEntriesModel.h"
#include "pages/files/PathPanel.h"
#include "platform/PlatformServicesImp.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr std::size_t batch = 64; // entries that a step asks for: about 1 ms
constexpr int large = 5000;       // entries of a directory that the service takes long to list

QString joined(QStringList sentences)
{
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

// What a pattern lacks, or an empty text.
QString fault(const QString& pattern)
{
    if (pattern.isEmpty())
        return FilesPage::tr("Type a pattern first, such as /etc/*.conf.");
    if (!pattern.contains(QLatin1Char('/')))
        return FilesPage::tr(
                   "The service finds nothing for a pattern without a directory, whatever "
                   "the working directory holds. Put one before it, such as ./%1.")
            .arg(pattern);
    return {};
}

} // namespace

FilesPage::FilesPage(QWidget* parent)
    : Page(parent),
      m_pattern(new QLineEdit),
      m_model(new FoundEntriesModel(this)),
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
    table->setModel(m_model);
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
    const QString refused = fault(m_pattern->text());
    if (!refused.isEmpty()) {
        report(Report::Error, refused);
        return;
    }
    m_searched = m_pattern->text();
    m_model->clear();
    m_search = nullptr;
    m_readAhead.emplace(m_searched);
    startJob({tr("Searching %1").arg(m_searched), [this] { return step(); },
              [this] { return tr("%1 found").arg(QLocale().toString(m_model->rowCount())); },
              [this](bool complete) { finish(complete); }});
}

void FilesPage::readAhead()
{
    m_readAhead->step();
    if (m_readAhead->isDone() && m_readAhead->entries() >= large)
        endSlice();
}

bool FilesPage::step()
{
    if (!m_readAhead->isDone()) {
        readAhead();
        return true;
    }
    std::vector<FoundEntry> entries;
    std::optional<FoundEntry> entry;
    if (!m_search) {
        m_search = std::make_unique<FileSearch>();
        entry = m_search->first(m_searched);
    } else {
        entry = m_search->next();
    }
    for (; entry; entry = m_search->next()) {
        entries.push_back(std::move(*entry));
        if (entries.size() == batch)
            break;
    }
    m_model->append(std::move(entries));
    return entry.has_value();
}

void FilesPage::finish(bool complete)
{
    m_search = nullptr;
    const int count = m_model->rowCount();
    const QString number = QLocale().toString(count);
    if (!complete) {
        report(Report::Warning, tr("Stopped: %1 found so far.").arg(number));
    } else if (count == 0) {
        m_hint->setText(tr("The service finds nothing for %1.").arg(m_searched));
        report(Report::Warning, joined({tr("Nothing found for %1.").arg(m_searched), remark()}));
    } else {
        const QString found =
            tr("%1 found. Size and times are reported for the first one only, and "
               "only if it is a file; dwReserved0, dwReserved1 and cAlternateFileName "
               "never are.")
                .arg(number);
        report(Report::Info, joined({found, remark()}));
    }
}

// What the service does not tell, but the folder itself: raw.
QString FilesPage::remark() const
{
    if (!m_readAhead->error().isEmpty())
        return tr("The folder cannot be opened: %1.").arg(m_readAhead->error());
    if (m_readAhead->undecodableNames() == 0)
        return {};
    return tr("Names in the folder that are no text in the locale's encoding, and that the service "
              "leaves out: %1.")
        .arg(QLocale().toString(m_readAhead->undecodableNames()));
}

void FilesPage::showCurrent()
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const QString folder = m_searched.left(m_searched.lastIndexOf(QLatin1Char('/')) + 1);
    m_paths->setPath(
        folder +
        current.siblingAtColumn(FoundEntriesModel::NameColumn).data(Qt::DisplayRole).toString());
}

#include "pages/profiles/ProfilesPage.h"

#include "inspection/profiles/ProfileReadingJob.h"
#include "pages/profiles/ProfileEditPanel.h"
#include "pages/profiles/ProfileEditor.h"
#include "pages/profiles/ProfileFindBar.h"
#include "pages/profiles/ProfileLinesModel.h"
#include "platform/profiles/LineStateText.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMimeData>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

QTableView* makeTable(QAbstractItemModel* model, const QString& name, const char* objectName)
{
    auto* table = new QTableView;
    table->setObjectName(QLatin1String(objectName));
    table->setAccessibleName(name);
    table->setModel(model);
    arrangeTable(*table);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 4 / 3);
    return table;
}

// The local file that is dragged, if it is one.
QString draggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

ProfilesPage::ProfilesPage(QWidget* parent)
    : Page(parent),
      m_file(new QLineEdit),
      m_linesModel(new ProfileLinesModel(this)),
      m_readingsModel(new RecordsModel<ProfileReading>(ProfileColumns::ofReadings(), this)),
      m_lines(makeLines()),
      m_readings(makeReadings()),
      m_panel(new ProfileEditPanel),
      m_find(new ProfileFindBar),
      m_editor(new ProfileEditor(*this, this))
{
    body()->addLayout(makeFileRow());
    addFindBar();
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_lines);
    splitter->addWidget(m_readings);
    body()->addWidget(splitter, 1);
    body()->addWidget(m_panel);
    connectEditor();
    addEditAction();
    setAcceptDrops(true);
    setFocusProxy(m_file);
}

void ProfilesPage::connectEditor()
{
    connect(m_panel, &ProfileEditPanel::writeRequested, this,
            [this] { change(ProfileChange::Action::Set); });
    connect(m_panel, &ProfileEditPanel::deletionRequested, this, &ProfilesPage::change);
    connect(m_editor, &ProfileEditor::written, this, &ProfilesPage::showWritten);
    connect(m_editor, &ProfileEditor::restored, this, &ProfilesPage::showRestored);
}

QLayout* ProfilesPage::makeFileRow()
{
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setAccessibleName(tr("Profile file"));
    m_file->setPlaceholderText(tr("Path of an INI file"));
    m_file->setAcceptDrops(false); // files dropped here are for the page
    auto* label = new QLabel(tr("Fil&e:"));
    label->setBuddy(m_file);
    auto* choose = glowing(new QPushButton(tr("Ope&n...")));
    choose->setObjectName(QStringLiteral("open"));
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_file, 1);
    row->addWidget(choose);
    connect(m_file, &QLineEdit::returnPressed, this, [this] { open(m_file->text()); });
    connect(choose, &QPushButton::clicked, this, &ProfilesPage::chooseFile);
    return row;
}

QTableView* ProfilesPage::makeLines()
{
    QTableView* table = makeTable(m_linesModel, tr("Lines of the file"), "lines");
    const QFontMetrics metrics = table->fontMetrics();
    const int gap = metrics.height();
    int margin = 0;
    const QStringList texts = shortTexts();
    for (const QString& text : texts)
        margin = std::max(margin, metrics.horizontalAdvance(text));
    QHeaderView* header = table->horizontalHeader();
    header->resizeSection(ProfileColumns::NumberColumn,
                          metrics.horizontalAdvance(QStringLiteral("99999")) + gap);
    header->resizeSection(ProfileColumns::NarrowStateColumn, margin + gap);
    header->resizeSection(ProfileColumns::WideStateColumn, margin + gap);
    new EmptyHint(table,
                  tr("Open a profile, or drop one here: each line appears with a margin that "
                     "tells how either family of calls reads it."));
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProfilesPage::showLine);
    return table;
}

QTableView* ProfilesPage::makeReadings()
{
    QTableView* table = makeTable(m_readingsModel, tr("Readings of both families"), "readings");
    fitColumns(*table, {QStringLiteral("Name of section"), QStringLiteral("Name of a key")});
    table->setColumnWidth(ProfileColumns::DifferenceColumn, table->fontMetrics().height() * 2);
    new ColumnBalancer(table, ProfileColumns::WideColumn, QStringLiteral("255.255.255.0"));
    new EmptyHint(table, tr("What the wide and the narrow calls read stands here side by side."));
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProfilesPage::showReading);
    return table;
}

void ProfilesPage::addEditAction()
{
    auto* edit = new QAction(tr("Edit value"), m_readings);
    edit->setShortcut(Qt::Key_F2);
    edit->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_readings->addAction(edit);
    m_readings->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* remove = new QAction(tr("Delete key"), m_readings);
    remove->setShortcut(Qt::Key_Delete);
    remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_readings->addAction(remove);
    connect(remove, &QAction::triggered, this, &ProfilesPage::deleteReading);
    connect(edit, &QAction::triggered, m_panel, &ProfileEditPanel::editValue);
    connect(m_readings, &QTableView::activated, m_panel, &ProfileEditPanel::editValue);
}

void ProfilesPage::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a profile"), m_path,
                                                      tr("Profiles (*.ini);;All files (*)"));
    if (!path.isEmpty())
        open(path);
}

void ProfilesPage::open(const QString& path)
{
    if (isBusy())
        return;
    if (path.isEmpty()) {
        report(Report::Error, tr("Type the path of a file first."));
        return;
    }
    const QString refused = ProfileDocument::fault(path);
    if (!refused.isEmpty()) {
        m_file->setText(m_path);
        report(Report::Error, refused);
        return;
    }
    m_summary.clear();
    m_place = QFileInfo(path).absoluteFilePath() == m_path ? currentPlace() : Place();
    read(path);
}

void ProfilesPage::refresh()
{
    if (!m_path.isEmpty())
        open(m_path);
}

void ProfilesPage::addFindBar()
{
    body()->addWidget(m_find);
    m_find->hide();
    auto* next = new QAction(tr("Find the next line"), this);
    next->setShortcut(Qt::Key_F3);
    next->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(next);
    connect(next, &QAction::triggered, this, &ProfilesPage::findNext);
    connect(m_find, &ProfileFindBar::nextRequested, this, &ProfilesPage::findNext);
    connect(m_find, &ProfileFindBar::closed, m_lines, QOverload<>::of(&QWidget::setFocus));
}

void ProfilesPage::find()
{
    if (m_linesModel->records().empty()) {
        setStatus(tr("There are no lines to search. Open a file first."));
        m_file->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    m_find->open();
}

// Searches from the line behind the current one to the end, and from the first line on.
void ProfilesPage::findNext()
{
    const QString text = m_find->text();
    const int count = m_linesModel->rowCount();
    if (text.isEmpty() || count == 0) {
        find();
        return;
    }
    const int first = m_lines->currentIndex().row() + 1;
    for (int i = 0; i < count; ++i) {
        const int row = (first + i) % count;
        if (m_linesModel->record(row).text.contains(text, Qt::CaseInsensitive)) {
            m_lines->setCurrentIndex(m_linesModel->index(row, ProfileColumns::TextColumn));
            return;
        }
    }
    setStatus(tr("No line contains “%1”.").arg(text));
}

// Shows the file and asks both families for all that it names.
void ProfilesPage::read(const QString& path)
{
    ProfileReadingJob::Receiver receiver{
        [this](ProfileDocument document) { showDocument(std::move(document)); },
        [this](ProfileReading reading) { addReading(std::move(reading)); }};
    startJob(tr("Reading through both families"),
             std::make_unique<ProfileReadingJob>(path, std::move(receiver)),
             [this](const ProfileReadingJob& job, bool complete) { finish(job, complete); });
}

void ProfilesPage::showDocument(ProfileDocument document)
{
    m_path = document.path();
    m_exists = document.exists();
    m_editor->noteRead(m_path);
    m_file->setText(m_path);
    m_readingsModel->setRecords({});
    m_linesModel->setRecords(std::move(document.lines()));
}

void ProfilesPage::addReading(ProfileReading reading)
{
    if (!reading.wide)
        m_linesModel->setNotFound(reading.section, reading.key);
    m_readingsModel->append({std::move(reading)});
}

void ProfilesPage::finish(const ProfileReadingJob& job, bool complete)
{
    if (!job.isLoaded()) {
        m_file->setText(m_path);
        report(Report::Warning, tr("Stopped before the file was read."));
        return;
    }
    restorePlace(complete);
    if (!m_exists)
        report(Report::Warning, tr("There is no such file: both families read it as empty. Writing "
                                   "a value creates it."));
    else if (!complete)
        report(Report::Warning, tr("Stopped. %1").arg(counts()));
    else if (m_summary.isEmpty())
        report(Report::Info, counts());
    else
        report(Report::Info, m_summary + QLatin1Char(' ') + counts());
}

QString ProfilesPage::counts() const
{
    const std::vector<ProfileReading>& readings = m_readingsModel->records();
    const auto differences = std::count_if(readings.begin(), readings.end(),
                                           [](const auto& reading) { return reading.differs(); });
    return tr("%1 values, %2 of them read differently.")
        .arg(QLocale().toString(m_readingsModel->rowCount()),
             QLocale().toString(static_cast<int>(differences)));
}

int ProfilesPage::rowOf(const ProfileDocument::Name& name) const
{
    for (int row = 0; row < m_readingsModel->rowCount(); ++row) {
        const ProfileReading& reading = m_readingsModel->record(row);
        if (reading.section == name.first && reading.key == name.second)
            return row;
    }
    return -1;
}

ProfilesPage::Place ProfilesPage::currentPlace() const
{
    Place place;
    place.line = m_lines->currentIndex().row();
    if (place.line >= 0)
        place.text = m_linesModel->record(place.line).text;
    const int row = m_readings->currentIndex().row();
    if (row >= 0) {
        const ProfileReading& reading = m_readingsModel->record(row);
        place.name.emplace(reading.section, reading.key);
    }
    return place;
}

// The fields are emptied where they show a reading that is no longer in the file.
void ProfilesPage::restorePlace(bool complete)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    const int line = m_place.line;
    if (line >= 0 && line < m_linesModel->rowCount() &&
        m_linesModel->record(line).text == m_place.text)
        m_lines->selectRow(line);
    const int row = m_place.name ? rowOf(*m_place.name) : -1;
    if (row >= 0)
        m_readings->selectRow(row);
    else if (complete && !m_readings->currentIndex().isValid())
        m_panel->updateReading({});
}

// Tells of the line in words, for users who see no tool tips.
void ProfilesPage::showLine()
{
    const int row = m_lines->currentIndex().row();
    if (row < 0)
        return;
    const ProfileDocument::Line& line = m_linesModel->record(row);
    chooseReadingOf(line);
    setStatus(tr("Line %1. Narrow: %2 Wide: %3")
                  .arg(QString::number(line.number), longText(line.narrow, ProfileFamily::Narrow),
                       longText(line.wide, ProfileFamily::Wide)));
}

void ProfilesPage::chooseReadingOf(const ProfileDocument::Line& line)
{
    for (int row = 0; row < m_readingsModel->rowCount(); ++row) {
        const ProfileReading& reading = m_readingsModel->record(row);
        const auto gives = [&reading](const LineReading& read) {
            return read.state == LineState::Entry && read.section == reading.section &&
                   read.key == reading.key;
        };
        if (gives(line.narrow) || gives(line.wide)) {
            m_readings->selectRow(row);
            return;
        }
    }
}

void ProfilesPage::showReading()
{
    const int row = m_readings->currentIndex().row();
    if (row < 0)
        return;
    if (m_isRestoring)
        m_panel->updateReading(m_readingsModel->record(row));
    else
        m_panel->setReading(m_readingsModel->record(row));
}

void ProfilesPage::change(ProfileChange::Action action)
{
    ProfileChange change = m_panel->change();
    change.action = action;
    m_editor->write({m_path, change, m_panel->keepsBackup()});
}

// The chosen one, whatever has been typed into the fields.
void ProfilesPage::deleteReading()
{
    const int row = m_readings->currentIndex().row();
    if (row < 0)
        return;
    const ProfileReading& reading = m_readingsModel->record(row);
    const ProfileChange change{m_panel->change().family, reading.section, reading.key, QString(),
                               ProfileChange::Action::DeleteKey};
    m_editor->write({m_path, change, m_panel->keepsBackup()});
}

void ProfilesPage::showWritten(const ProfileChange& change, const QString& summary)
{
    m_place = currentPlace();
    if (change.action == ProfileChange::Action::Set) {
        m_place.name.emplace(change.section, change.key);
        m_panel->setReading({change.section, change.key, change.value, change.value});
    }
    m_summary = summary;
    read(m_path);
}

void ProfilesPage::showRestored(const QString& path, const QString& summary)
{
    m_place = path == m_path ? currentPlace() : Place();
    m_summary = summary;
    read(path);
}

void ProfilesPage::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isBusy() && !draggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ProfilesPage::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    open(draggedFile(*event->mimeData()));
}

#include "pages/profiles/ProfilesPage.h"

#include "inspection/profiles/NarrowRewriting.h"
#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileDryRun.h"
#include "inspection/profiles/ProfileReader.h"
#include "pages/profiles/LostLinesDialog.h"
#include "pages/profiles/ProfileEditPanel.h"
#include "pages/profiles/ProfileFindBar.h"
#include "pages/profiles/ProfileLinesModel.h"
#include "pages/profiles/ProfileReadingsModel.h"
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
      m_readingsModel(new ProfileReadingsModel(this)),
      m_lines(makeLines()),
      m_readings(makeReadings()),
      m_panel(new ProfileEditPanel),
      m_find(new ProfileFindBar)
{
    body()->addLayout(makeFileRow());
    addFindBar();
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_lines);
    splitter->addWidget(m_readings);
    body()->addWidget(splitter, 1);
    body()->addWidget(m_panel);
    connect(m_panel, &ProfileEditPanel::writeRequested, this, &ProfilesPage::write);
    addEditAction();
    setAcceptDrops(true);
    setFocusProxy(m_file);
}

ProfilesPage::~ProfilesPage() = default;

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
    header->resizeSection(ProfileLinesModel::NumberColumn,
                          metrics.horizontalAdvance(QStringLiteral("99999")) + gap);
    header->resizeSection(ProfileLinesModel::NarrowColumn, margin + gap);
    header->resizeSection(ProfileLinesModel::WideColumn, margin + gap);
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
    table->setColumnWidth(ProfileReadingsModel::DifferenceColumn,
                          table->fontMetrics().height() * 2);
    new ColumnBalancer(table, ProfileReadingsModel::WideColumn, QStringLiteral("255.255.255.0"));
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
    connect(edit, &QAction::triggered, m_panel, &ProfileEditPanel::editValue);
    connect(m_readings, &QTableView::activated, m_panel, &ProfileEditPanel::editValue);
}

void ProfilesPage::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a profile"), m_document.path(),
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
        m_file->setText(m_document.path());
        report(Report::Error, refused);
        return;
    }
    m_summary.clear();
    m_keptName.reset();
    m_keptLine = -1;
    if (QFileInfo(path).absoluteFilePath() == m_document.path())
        keepPlace();
    read(path);
}

void ProfilesPage::refresh()
{
    if (!m_document.path().isEmpty())
        open(m_document.path());
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
    if (m_document.lines().empty()) {
        setStatus(tr("There are no lines to search. Open a file first."));
        m_file->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    m_find->open();
}

// From the line after the current one on, and at the end from the first one.
void ProfilesPage::findNext()
{
    const QString text = m_find->text();
    if (text.isEmpty() || m_document.lines().empty()) {
        find();
        return;
    }
    const std::size_t count = m_document.lines().size();
    const auto current = static_cast<std::size_t>(m_lines->currentIndex().row() + 1);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t row = (current + i) % count;
        if (!m_document.lines()[row].text.contains(text, Qt::CaseInsensitive))
            continue;
        m_lines->setCurrentIndex(
            m_linesModel->index(static_cast<int>(row), ProfileLinesModel::TextColumn));
        return;
    }
    setStatus(tr("No line contains “%1”.").arg(text));
}

// Shows the file and asks both families for all that it names.
void ProfilesPage::read(const QString& path)
{
    m_loading = std::make_unique<ProfileLoading>(path);
    startJob({tr("Reading through both families"), [this] { return readStep(); },
              [this] { return progress(); }, [this](bool complete) { finish(complete); }});
}

bool ProfilesPage::readStep()
{
    if (m_loading)
        loadStep();
    else if (!m_hold)
        m_hold = std::make_unique<ParsedProfileCache>(m_document.path());
    else
        readNext();
    return m_loading || !m_names.empty();
}

// Each part of the work on a large file may fill a slice of its own.
void ProfilesPage::loadStep()
{
    if (m_loading->document().isLarge())
        endSlice();
    if (!m_loading->step())
        showDocument(*std::exchange(m_loading, nullptr));
}

void ProfilesPage::showDocument(ProfileLoading& loading)
{
    m_readingsModel->clear();
    m_linesModel->setDocument(nullptr);
    m_document = std::move(loading.document());
    m_linesModel->setDocument(&m_document);
    m_file->setText(m_document.path());
    m_names = std::move(loading.names());
    std::reverse(m_names.begin(), m_names.end());
}

void ProfilesPage::readNext()
{
    const ProfileDocument::Name name = m_names.back();
    m_names.pop_back();
    const ProfileReader reader(m_document.path());
    ProfileReading reading{name.first, name.second, reader.wide(name.first, name.second),
                           reader.narrow(name.first, name.second)};
    if (!reading.wide)
        m_linesModel->setNotFound(name);
    m_readingsModel->append({std::move(reading)});
}

QString ProfilesPage::progress() const
{
    return m_loading ? QString()
                     : tr("%1 values").arg(QLocale().toString(m_readingsModel->rowCount()));
}

void ProfilesPage::finish(bool complete)
{
    m_hold.reset();
    if (std::exchange(m_loading, nullptr)) {
        m_file->setText(m_document.path());
        report(Report::Warning, tr("Stopped before the file was read."));
        return;
    }
    restorePlace(complete);
    if (!m_document.exists()) {
        report(Report::Warning, tr("There is no such file: both families read it as empty. Writing "
                                   "a value creates it."));
        return;
    }
    const QString counts = tr("%1 values, %2 of them read differently.")
                               .arg(QLocale().toString(m_readingsModel->rowCount()),
                                    QLocale().toString(m_readingsModel->differences()));
    if (!complete)
        report(Report::Warning, tr("Stopped. %1").arg(counts));
    else
        report(Report::Info, m_summary.isEmpty() ? counts : m_summary + QLatin1Char(' ') + counts);
}

int ProfilesPage::rowOf(const ProfileDocument::Name& name) const
{
    for (int row = 0; row < m_readingsModel->rowCount(); ++row) {
        const ProfileReading& reading = m_readingsModel->reading(row);
        if (reading.section == name.first && reading.key == name.second)
            return row;
    }
    return -1;
}

void ProfilesPage::keepPlace()
{
    m_keptLine = m_lines->currentIndex().row();
    if (m_keptLine >= 0)
        m_keptText = m_document.lines()[static_cast<std::size_t>(m_keptLine)].text;
    const int row = m_readings->currentIndex().row();
    if (row < 0)
        return;
    const ProfileReading& reading = m_readingsModel->reading(row);
    m_keptName.emplace(reading.section, reading.key);
}

// The fields let go of a reading that is there no more.
void ProfilesPage::restorePlace(bool complete)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    const std::vector<ProfileDocument::Line>& lines = m_document.lines();
    const auto line = static_cast<std::size_t>(m_keptLine);
    if (m_keptLine >= 0 && line < lines.size() && lines[line].text == m_keptText)
        m_lines->selectRow(m_keptLine);
    const int row = m_keptName ? rowOf(*m_keptName) : -1;
    if (row >= 0)
        m_readings->selectRow(row);
    else if (complete && !m_readings->currentIndex().isValid())
        m_panel->updateReading({});
}

// The line in words, for those who see no tool tips, and the reading that it gives.
void ProfilesPage::showLine()
{
    const int row = m_lines->currentIndex().row();
    if (row < 0)
        return;
    const ProfileDocument::Line& line = m_document.lines()[static_cast<std::size_t>(row)];
    for (int i = 0; i < m_readingsModel->rowCount(); ++i) {
        const ProfileReading& reading = m_readingsModel->reading(i);
        const auto gives = [&reading](const LineReading& read) {
            return read.state == LineState::Entry && read.section == reading.section &&
                   read.key == reading.key;
        };
        if (gives(line.narrow) || gives(line.wide)) {
            m_readings->selectRow(i);
            break;
        }
    }
    setStatus(tr("Line %1. Narrow: %2 Wide: %3")
                  .arg(QString::number(row + 1), longText(line.narrow, ProfileFamily::Narrow),
                       longText(line.wide, ProfileFamily::Wide)));
}

void ProfilesPage::showReading()
{
    const int row = m_readings->currentIndex().row();
    if (row < 0)
        return;
    if (m_isRestoring)
        m_panel->updateReading(m_readingsModel->reading(row));
    else
        m_panel->setReading(m_readingsModel->reading(row));
}

void ProfilesPage::write()
{
    if (isBusy())
        return;
    if (m_document.path().isEmpty()) {
        report(Report::Error, tr("Open a file first."));
        return;
    }
    const ProfileChange change = m_panel->change();
    const QString refused = ProfileWriter(m_document.path()).fault(change);
    if (refused.isEmpty())
        tryOut(change);
    else
        report(Report::Error, refused);
}

void ProfilesPage::tryOut(const ProfileChange& change)
{
    const auto trial = std::make_shared<ProfileDryRun>(m_document.path(), change);
    const auto step = [this, trial] {
        if (trial->document().isLarge())
            endSlice();
        return trial->step();
    };
    startJob({tr("Trying the change on a copy"), step, {}, [this, trial](bool complete) {
                  if (complete)
                      judge(*trial);
                  else
                      setStatus(tr("Nothing written."));
              }});
}

void ProfilesPage::judge(const ProfileDryRun& trial)
{
    const ProfileChange& change = trial.change();
    if (!trial.isReadBack()) {
        report(Report::Error, ProfileWriter::unreadable(change.family));
        return;
    }
    const QByteArray& judged = trial.bytes();
    if (trial.isHarmless()) {
        writeAsJudged(change, judged);
        return;
    }
    auto* dialog = new LostLinesDialog(trial.document(), change.family, trial.changes(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, change, judged] { writeAsJudged(change, judged); });
    connect(dialog, &QDialog::rejected, this, [this] { setStatus(tr("Nothing written.")); });
    dialog->open();
}

// What was agreed to are the losses of the file as it was.
void ProfilesPage::writeAsJudged(const ProfileChange& change, const QByteArray& judged)
{
    if (ProfileDocument::bytesOf(m_document.path()) == judged) {
        writeNow(change);
        return;
    }
    report(Report::Warning, tr("The file has been changed meanwhile: the change is tried again."));
    tryOut(change);
}

void ProfilesPage::writeNow(const ProfileChange& change)
{
    QString backup;
    if (m_panel->keepsBackup() && QFile::exists(m_document.path())) {
        backup = ProfileWriter(m_document.path()).backUp();
        if (backup.isEmpty()) {
            report(Report::Error, tr("Nothing written: the backup copy could not be made."));
            return;
        }
    }
    const auto writing = std::make_shared<ProfileWriting>(m_document.path(), change);
    const auto step = [this, writing] {
        if (m_document.isLarge())
            endSlice();
        return writing->step();
    };
    startJob({tr("Writing"), step, {}, [this, writing, backup](bool complete) {
                  finishWriting(*writing, backup, complete);
              }});
}

// Cancelled, it may have written all the same.
void ProfilesPage::finishWriting(const ProfileWriting& writing, const QString& backup,
                                 bool complete)
{
    if (!complete && !writing.isWritten()) {
        QFile::remove(backup);
        setStatus(tr("Nothing written."));
        return;
    }
    if (complete && !writing.isReadBack()) {
        report(Report::Error, tr("The value could not be written to %1.").arg(m_document.path()));
        return;
    }
    const ProfileChange& change = writing.change();
    keepPlace();
    m_keptName.emplace(change.section, change.key);
    m_panel->setReading({change.section, change.key, change.value, change.value});
    m_summary =
        backup.isEmpty() ? tr("Written.") : tr("Written; the backup copy is %1.").arg(backup);
    read(m_document.path());
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

#include "pages/profiles/ProfilesPage.h"

#include "pages/profiles/ProfileEditPanel.h"
#include "pages/profiles/ProfileEditor.h"
#include "pages/profiles/ProfileFileBar.h"
#include "pages/profiles/ProfileLinesPane.h"
#include "pages/profiles/ProfileReadingsPane.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace {

// The local file that is dragged, if it is one.
QString draggedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

ProfilesPage::ProfilesPage(QWidget* parent)
    : Page(parent),
      m_file(new ProfileFileBar),
      m_lines(new ProfileLinesPane(*this)),
      m_readings(new ProfileReadingsPane(*this)),
      m_panel(new ProfileEditPanel),
      m_editor(new ProfileEditor(*this, this))
{
    body()->addWidget(m_file);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_lines);
    splitter->addWidget(m_readings);
    splitter->setSizes({3000, 2000}); // shares: where the window is low, lines come first
    body()->addWidget(splitter, 1);
    body()->addWidget(m_panel);
    connect(m_file, &ProfileFileBar::openRequested, this, &ProfilesPage::openFile);
    connect(m_lines, &ProfileLinesPane::lineChosen, this, &ProfilesPage::showLine);
    connect(m_readings, &ProfileReadingsPane::nameChosen, this, &ProfilesPage::showName);
    connect(m_readings, &ProfileReadingsPane::answered, this, &ProfilesPage::updateReading);
    connect(m_readings, &ProfileReadingsPane::editRequested, m_panel, &ProfileEditPanel::editValue);
    connectEditor();
    connect(&m_rereader, &JobRunner::finished, this, &ProfilesPage::finishReread);
    addKey(Qt::Key_F3, tr("Find the next line"), &ProfilesPage::findNext);
    addKey(Qt::Key_F8, tr("Next difference"), &ProfilesPage::nextDifference);
    setAcceptDrops(true);
    setFocusProxy(m_file);
}

ProfilesPage::~ProfilesPage() = default;

void ProfilesPage::connectEditor()
{
    connect(m_panel, &ProfileEditPanel::writeRequested, this,
            [this] { change(ProfileChange::Action::Set); });
    connect(m_panel, &ProfileEditPanel::deletionRequested, this, &ProfilesPage::change);
    connect(m_readings, &ProfileReadingsPane::deletionRequested, this, &ProfilesPage::deleteName);
    connect(m_editor, &ProfileEditor::written, this, &ProfilesPage::showWritten);
    connect(m_editor, &ProfileEditor::restored, this, &ProfilesPage::showRestored);
}

void ProfilesPage::addKey(int key, const QString& text, void (ProfilesPage::*operation)())
{
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    connect(action, &QAction::triggered, this, operation);
}

void ProfilesPage::openFile(const QString& path)
{
    open(path);
}

void ProfilesPage::showPlace(const PlaceRequest& request)
{
    std::optional<ProfileDocument::Name> name;
    if (request.names.size() == 2)
        name.emplace(request.names[0], request.names[1]);
    open(request.place, name);
}

void ProfilesPage::open(const QString& path, const std::optional<ProfileDocument::Name>& name)
{
    if (isBusy())
        return;
    if (path.isEmpty()) {
        report(Report::Error, tr("Type the path of a file first."));
        return;
    }
    if (isRefused(path))
        return;
    m_summary.clear();
    const QString whole = QFileInfo(path).absoluteFilePath();
    m_file->setPath(whole);
    m_place = whole == m_path ? currentPlace() : Place();
    if (name) {
        m_place = Place();
        m_place.name = name;
    }
    read(whole);
}

// Says why where it is.
bool ProfilesPage::isRefused(const QString& path)
{
    const QString reason = ProfileDocument::fault(path);
    if (!reason.isEmpty())
        report(Report::Error, reason);
    return !reason.isEmpty();
}

// What is typed may be a path that has not been opened.
void ProfilesPage::refresh()
{
    if (m_path.isEmpty() || isBusy() || isRefused(m_path))
        return;
    m_summary.clear();
    m_place = currentPlace();
    read(m_path);
}

void ProfilesPage::find()
{
    if (m_lines->hasLines()) {
        m_lines->find();
        return;
    }
    setStatus(tr("There are no lines to search. Open a file first."));
    m_file->setFocus(Qt::ShortcutFocusReason);
}

void ProfilesPage::findNext()
{
    if (m_lines->hasLines() && !isBusy())
        m_lines->findNext();
    else
        find();
}

void ProfilesPage::nextDifference()
{
    m_readings->nextDifference();
}

// Shows the file and asks both families for what it names.
void ProfilesPage::read(const QString& path)
{
    stopReread();
    startJob(tr("Reading through both families"), makeReadingJob(path),
             [this](const ProfileReadingJob& job, bool complete) { finish(job, complete); });
}

std::unique_ptr<ProfileReadingJob> ProfilesPage::makeReadingJob(const QString& path)
{
    ProfileReadingJob::Receiver receiver{
        [this](std::shared_ptr<const ProfileDocument> document, int wanted) {
            showDocument(std::move(document), wanted);
        },
        [this](int name, const ProfileReading& reading) { addReading(name, reading); }};
    m_readingStamp = FileStamp::of(path);
    auto job = std::make_unique<ProfileReadingJob>(path, std::move(receiver));
    if (m_place.name)
        job->lookFor(*m_place.name);
    return job;
}

void ProfilesPage::showDocument(std::shared_ptr<const ProfileDocument> document, int wanted)
{
    m_path = document->path();
    m_stamp = m_readingStamp;
    m_wanted = wanted;
    if (m_reread) // what the user has chosen meanwhile
        m_place = currentPlace();
    m_document = std::move(document);
    m_editor->noteRead(m_path);
    m_lines->setDocument(m_document);
    m_readings->setDocument(m_document);
    if (m_reread)
        restorePlace(false);
}

// The answer may tell that a line only looked like an entry of the wide family.
void ProfilesPage::addReading(int name, const ProfileReading& reading)
{
    const ProfileNames::Place place = m_document->names().place(name);
    if (!reading.wide && place.family == ProfileFamily::Wide)
        m_lines->setNotFound(place.line);
    m_readings->setReading(name, reading);
}

void ProfilesPage::finish(const ProfileReadingJob& job, bool complete)
{
    if (!job.isLoaded()) {
        report(Report::Warning, tr("Stopped before the file was read."));
        return;
    }
    restorePlace(complete);
    markRead();
    if (!m_document->exists())
        report(Report::Warning, tr("There is no such file: both families read it as empty. Writing "
                                   "a value creates it."));
    else if (!complete)
        report(Report::Warning, tr("Stopped. %1").arg(m_readings->counts()));
    else if (m_summary.isEmpty())
        report(Report::Info, m_readings->counts());
    else
        report(m_summaryKind, m_summary + QLatin1Char(' ') + m_readings->counts());
}

// A change right behind the reading may have left the time as it was.
bool ProfilesPage::hasChanged()
{
    const FileStamp former = std::exchange(m_stamp, FileStamp::of(m_path));
    if (former != m_stamp)
        return true;
    return !former.isSure() && m_document->lines().hasMarks() &&
           ProfileDocument::bytesOf(m_path) != m_document->lines().bytes();
}

void ProfilesPage::lookForChanges()
{
    if (m_path.isEmpty() || m_rereader.isRunning() || !hasChanged())
        return;
    if (QFileInfo::exists(m_path) && isRefused(m_path)) // which is said once
        return;
    m_place = currentPlace();
    m_reread = makeReadingJob(m_path);
    if (m_rereader.start(*m_reread))
        finishReread();
}

void ProfilesPage::finishReread()
{
    m_reread.reset();
    m_place = currentPlace();
    m_wanted = m_readings->chosenName();
    restorePlace(true);
    markRead();
    if (m_document->exists())
        setStatus(tr("The file has been changed by somebody else, and was read again. %1")
                      .arg(m_readings->counts()));
    else
        report(Report::Warning,
               tr("%1 has been deleted: both families read it as empty.").arg(m_path));
}

void ProfilesPage::stopReread()
{
    m_rereader.cancel();
    m_reread.reset();
}

ProfilesPage::Place ProfilesPage::currentPlace() const
{
    Place place;
    place.line = m_lines->chosenLine();
    if (place.line >= 0)
        place.text = m_lines->text(place.line);
    const int name = m_readings->chosenName();
    if (name >= 0)
        place.name = m_document->name(name);
    place.linesPosition = m_lines->scrollPosition();
    place.readingsPosition = m_readings->scrollPosition();
    return place;
}

// The fields are emptied where they show a reading that is no longer in the file.
void ProfilesPage::restorePlace(bool complete)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    m_readings->arrangeAgain();
    const int line = m_place.line;
    if (line >= 0 && line < m_document->lines().count() && m_lines->text(line) == m_place.text)
        m_lines->chooseLine(line);
    if (m_wanted >= 0) {
        m_readings->chooseName(m_wanted);
        if (m_lines->chosenLine() < 0)
            m_lines->chooseLine(m_document->names().place(m_wanted).line);
        showReading(m_wanted);
    } else if (complete && m_readings->chosenName() < 0) {
        m_panel->updateReading({});
    }
    m_lines->scrollTo(m_place.linesPosition);
    m_readings->scrollTo(m_place.readingsPosition);
}

// Tells of the line in words, for users who see no tool tips.
void ProfilesPage::showLine(int line)
{
    const int name = m_document->names().ofLine(line);
    if (name >= 0) {
        m_readings->chooseName(name);
        showReading(name);
    }
    setStatus(m_lines->description(line));
}

// A line that gives the name stays chosen.
void ProfilesPage::showName(int name)
{
    const ProfileNames& names = m_document->names();
    if (m_lines->chosenLine() < 0 || names.ofLine(m_lines->chosenLine()) != name)
        m_lines->chooseLine(names.place(name).line);
    setStatus(m_lines->description(m_lines->chosenLine()));
    showReading(name);
}

void ProfilesPage::showReading(int name)
{
    if (m_reread && !m_reread->isLoaded())
        m_reread->lookFor(m_document->name(name));
    if (m_isRestoring)
        m_panel->updateReading(m_readings->reading(name));
    else
        m_panel->setReading(m_readings->reading(name));
}

// An answer that comes when the name is shown already.
void ProfilesPage::updateReading(int name, const ProfileReading& reading)
{
    addReading(name, reading);
    if (name == m_readings->chosenName())
        m_panel->updateReading(reading);
}

void ProfilesPage::change(ProfileChange::Action action)
{
    if (action == ProfileChange::Action::Set && m_panel->isWaiting()) {
        report(Report::Error, tr("This value has not been read yet."));
        return;
    }
    ProfileChange change = m_panel->change();
    change.action = action;
    m_editor->write({m_path, change, m_panel->keepsBackup()});
}

// Whatever has been typed into the fields.
void ProfilesPage::deleteName(int name)
{
    const ProfileDocument::Name names = m_document->name(name);
    const ProfileChange change{m_panel->change().family, names.first, names.second, QString(),
                               ProfileChange::Action::DeleteKey};
    m_editor->write({m_path, change, m_panel->keepsBackup()});
}

void ProfilesPage::showWritten(const ProfileChange& change, const QString& summary, bool isAsShown)
{
    m_place = currentPlace();
    if (change.action == ProfileChange::Action::Set) {
        m_place.name.emplace(change.section, change.key);
        m_panel->setReading({change.section, change.key, change.value, change.value});
    }
    m_summary = summary;
    m_summaryKind = isAsShown ? Report::Info : Report::Warning;
    read(m_path);
}

void ProfilesPage::showRestored(const QString& path, const QString& summary)
{
    if (path != m_path)
        m_file->setPath(path);
    m_place = path == m_path ? currentPlace() : Place();
    m_summary = summary;
    m_summaryKind = Report::Info;
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

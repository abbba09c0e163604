#include "pages/trace/TracePage.h"

#include "pages/trace/AskedPane.h"
#include "pages/trace/CallsPane.h"
#include "pages/trace/LeaksPane.h"
#include "pages/trace/OperationsPane.h"
#include "pages/trace/RecordingBar.h"
#include "window/ViewLook.h"

#include <QFileInfo>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

TracePage::TracePage(QWidget* parent)
    : Page(parent),
      m_file(new RecordingBar),
      m_tabs(new QTabWidget),
      m_calls(new CallsPane),
      m_operations(new OperationsPane),
      m_leaks(new LeaksPane),
      m_asked(new AskedPane)
{
    m_tabs->setAccessibleName(tr("What is shown of the recording"));
    m_tabs->addTab(m_calls, tr("Call&s"));
    m_tabs->addTab(m_operations, tr("S&tatistics"));
    m_tabs->addTab(m_leaks, tr("Lea&ks"));
    m_tabs->addTab(m_asked, tr("Asked for and a&bsent"));
    arrangeTabs(*m_tabs);
    body()->addWidget(m_file);
    body()->addWidget(m_tabs, 1);
    connect(m_file, &RecordingBar::openRequested, this, &TracePage::openFile);
    connect(m_calls, &CallsPane::placeRequested, this, &Page::placeRequested);
    connect(m_leaks, &LeaksPane::placeRequested, this, &Page::placeRequested);
    connect(m_asked, &AskedPane::placeRequested, this, &Page::placeRequested);
    connect(m_tabs, &QTabWidget::currentChanged, this, &TracePage::showTab);
    connect(&m_follower, &JobRunner::finished, this, &TracePage::finishFollowing);
    setFocusProxy(m_file);
}

TracePage::~TracePage() = default;

void TracePage::openFile(const QString& path)
{
    if (isBusy() || isRefused(path))
        return;
    read(QFileInfo(path).absoluteFilePath());
}

// Says why where it is. A bundle is an archive, which the application has no library to read.
bool TracePage::isRefused(const QString& path)
{
    if (path.isEmpty())
        report(Report::Error, tr("Type the path of a file first."));
    else if (path.endsWith(QLatin1String(".qtrace"), Qt::CaseInsensitive))
        report(Report::Error,
               tr("%1 is a bundle. Take the recording out of it first: \"quaysidectl trace trim "
                  "--calls 1- BUNDLE FILE\" writes it into a file.")
                   .arg(QFileInfo(path).fileName()));
    else if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) // a pipe would never open
        report(Report::Error, tr("%1 is no file.").arg(path));
    else
        return false;
    return true;
}

void TracePage::read(const QString& path)
{
    const FileStamp stamp = FileStamp::of(path);
    const Recording recording = std::make_shared<trace::OpenRecording>(path);
    if (!recording->file().open())
        return report(Report::Error, recording->file().error());
    startJob(tr("Reading the recording"), std::make_unique<trace::RecordingJob>(*recording),
             [=](const trace::RecordingJob& /*job*/, bool complete) {
                 if (!complete)
                     return report(Report::Warning, tr("Stopped before the recording was read."));
                 m_stamp = stamp;
                 showRecording(path, recording);
             });
}

void TracePage::showRecording(const QString& path, const Recording& recording)
{
    m_follower.cancel();
    m_following.reset();
    m_path = path;
    m_file->setPath(path);
    m_calls->setRecording(recording);
    m_recording = recording;
    showComings();
    const bool isWhole = m_recording->file().faultCount() == 0;
    report(isWhole ? Report::Info : Report::Warning, counts());
}

void TracePage::showComings()
{
    showTab();
    markRead();
}

// What nobody sees is made when it comes into view: of a large recording it takes its time.
void TracePage::showTab()
{
    if (!m_recording)
        return;
    const trace::TraceAnalysis& analysis = m_recording->analysis();
    if (m_tabs->currentWidget() == m_operations)
        m_operations->setStatistics(analysis.statistics());
    else if (m_tabs->currentWidget() == m_asked)
        m_asked->showAsked(m_recording);
    else if (m_tabs->currentWidget() == m_leaks)
        m_leaks->setLeaks(analysis.leaks(), !m_recording->file().endLine().isEmpty());
}

QString TracePage::counts() const
{
    const trace::TraceFile& file = m_recording->file();
    QString text = tr("Calls: %L1.").arg(file.calls().size());
    if (file.endLine().isEmpty())
        text += QLatin1Char(' ') + tr("The recording has no end: the program is still running, or "
                                      "was killed. What is added to it appears here.");
    const std::vector<trace::TraceFault> faults = file.faults();
    if (!faults.empty())
        text += QLatin1Char(' ') + tr("Lines that cannot be read: %L1. %2")
                                       .arg(file.faultCount())
                                       .arg(faults.front().text());
    return text;
}

void TracePage::refresh()
{
    if (!m_path.isEmpty() && !isBusy())
        read(m_path);
}

void TracePage::find()
{
    m_tabs->setCurrentWidget(m_calls);
    m_calls->find();
}

bool TracePage::isSearching() const
{
    return m_calls->isSearching();
}

// Another file in the place of the one that is open is another recording.
void TracePage::lookForChanges()
{
    if (!m_recording || m_follower.isRunning())
        return;
    const FileStamp stamp = FileStamp::of(m_path);
    if (stamp.exists() && !stamp.isSameFile(m_stamp))
        return read(m_path);
    if (m_recording->file().size() == m_recording->file().readSize())
        return;
    m_following = std::make_unique<trace::RecordingJob>(*m_recording);
    if (m_follower.start(*m_following))
        finishFollowing();
}

void TracePage::finishFollowing()
{
    const std::unique_ptr<trace::RecordingJob> job = std::move(m_following);
    m_calls->follow(job->changed());
    showComings();
    setStatus(counts());
}

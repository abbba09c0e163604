#include "window/Page.h"

#include "app/ApplicationLog.h"
#include "tests/support/TimerEvents.h"
#include "tests/support/WaitFor.h"
#include "widgets/QProgressIndicator.h"
#include "window/BusyOverlay.h"

#include <QAccessible>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>

namespace {

class OnePage : public Page
{
public:
    OnePage() : field(new QLineEdit) { body()->addWidget(field); }

    QLineEdit* field;
    int looks = 0;

protected:
    void lookForChanges() override { ++looks; }
};

class PaintCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

// A job of so many steps of one millisecond. It counts what it has done, and how many such jobs
// there are.
class CountingJob : public Job
{
public:
    CountingJob(int steps, int& done, int& alive) : m_steps(steps), m_done(done), m_alive(alive)
    {
        ++m_alive;
    }
    ~CountingJob() override { --m_alive; }

    bool step() override
    {
        QTest::qSleep(1);
        return ++m_done < m_steps;
    }
    QString progress() const override { return QString::number(m_done); }

private:
    int m_steps;
    int& m_done;
    int& m_alive;
};

class PageTest : public testing::Test
{
protected:
    PageTest()
    {
        m_page.resize(640, 480);
        m_page.show();
        EXPECT_TRUE(waitForActive(&m_page));
        m_page.field->setFocus();
    }

    BusyOverlay& overlay() { return *m_page.findChild<BusyOverlay*>(); }

    void start(int steps)
    {
        m_page.startJob("Counting", std::make_unique<CountingJob>(steps, m_done, m_alive),
                        [this](CountingJob&, bool complete) {
                            ++m_ends;
                            m_end = complete ? "complete" : "cancelled";
                        });
    }
    bool ends()
    {
        return waitFor([this] { return !m_end.isEmpty(); });
    }

    // Before the page, which drops its job at the end.
    int m_done = 0;
    int m_alive = 0;
    int m_ends = 0;
    QString m_end;
    OnePage m_page;
};

TEST_F(PageTest, AShortJobEndsAtOnceWithoutCoveringThePage)
{
    start(1);
    EXPECT_EQ(m_done, 1);
    EXPECT_EQ(m_end.toStdString(), "complete");
    EXPECT_FALSE(overlay().isVisible());
    EXPECT_TRUE(m_page.field->hasFocus());
}

TEST_F(PageTest, ALongJobCoversThePageWithAWheelTheCountAndACancelButton)
{
    start(1000000);
    EXPECT_TRUE(m_page.isBusy());
    EXPECT_TRUE(overlay().isVisible());
    EXPECT_EQ(overlay().geometry(), m_page.rect());
    EXPECT_FALSE(m_page.field->isEnabled());
    const int before = m_done;
    ASSERT_TRUE(waitFor([&] { return m_done > before; }));
    auto* wheel = overlay().findChild<QProgressIndicator*>();
    ASSERT_TRUE(wheel);
    EXPECT_TRUE(wheel->isAnimated());
    EXPECT_EQ(wheel->size(), m_page.size());
    QStringList texts;
    for (const QLabel* label : overlay().findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("Counting"));
    EXPECT_TRUE(texts.contains(QString::number(m_done)));
    auto* cancel = overlay().findChild<QPushButton*>();
    EXPECT_TRUE(cancel->hasFocus());
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_EQ(m_end.toStdString(), "cancelled");
    EXPECT_FALSE(m_page.isBusy());
    EXPECT_FALSE(overlay().isVisible());
    EXPECT_TRUE(m_page.field->hasFocus());
}

TEST_F(PageTest, ALongJobGoesOnToItsEnd)
{
    start(60);
    EXPECT_LT(m_done, 60);
    ASSERT_TRUE(ends());
    EXPECT_EQ(m_done, 60);
    EXPECT_EQ(m_end.toStdString(), "complete");
    EXPECT_TRUE(m_page.field->isEnabled());
}

TEST_F(PageTest, EscapeCancelsAJob)
{
    start(1000000);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(m_end.toStdString(), "cancelled");
}

TEST_F(PageTest, OneJobRunsAtATime)
{
    start(60);
    int second = 0;
    bool ended = false;
    m_page.startJob("Second", std::make_unique<CountingJob>(1, second, m_alive),
                    [&ended](CountingJob&, bool) { ended = true; });
    EXPECT_EQ(second, 0);
    EXPECT_EQ(m_alive, 1) << "the second is kept";
    ASSERT_TRUE(ends());
    EXPECT_EQ(second, 0);
    EXPECT_FALSE(ended);
}

TEST_F(PageTest, TheEndOfAJobIsToldOnceAndByTheJobItself)
{
    int steps = 0;
    int tellings = 0;
    auto job = std::make_unique<CountingJob>(60, steps, m_alive);
    const CountingJob* started = job.get();
    m_page.startJob("Counting", std::move(job), [&](CountingJob& ended, bool complete) {
        ++tellings;
        EXPECT_EQ(&ended, started);
        EXPECT_EQ(ended.progress(), "60");
        EXPECT_TRUE(complete);
        EXPECT_EQ(m_alive, 1);
        EXPECT_FALSE(m_page.isBusy());
        EXPECT_TRUE(m_page.field->isEnabled());
    });
    ASSERT_TRUE(waitFor([&tellings] { return tellings > 0; }));
    m_page.cancelJob();
    QTest::qWait(20);
    EXPECT_EQ(tellings, 1);
}

TEST_F(PageTest, AJobIsDestroyedAfterItsEnd)
{
    start(1);
    EXPECT_EQ(m_alive, 0);
    start(60);
    EXPECT_EQ(m_alive, 1);
    EXPECT_TRUE(waitFor([this] { return !m_page.isBusy(); }));
    EXPECT_EQ(m_alive, 0);
}

TEST_F(PageTest, ACancelledJobIsToldOnceAndDestroyed)
{
    start(1000000);
    m_page.cancelJob();
    EXPECT_EQ(m_alive, 0);
    m_page.cancelJob();
    QTest::qWait(20);
    EXPECT_EQ(m_ends, 1);
    EXPECT_EQ(m_end.toStdString(), "cancelled");
}

TEST_F(PageTest, TheEndOfAJobMayStartTheNextOne)
{
    int first = 0;
    m_page.startJob("First", std::make_unique<CountingJob>(1, first, m_alive),
                    [this](CountingJob&, bool) { start(1); });
    EXPECT_EQ(m_done, 1);
    EXPECT_EQ(m_end.toStdString(), "complete");
}

TEST_F(PageTest, AJobLeavesTheEventLoopItsTurns)
{
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(0);
    start(100);
    ASSERT_TRUE(ends());
    EXPECT_GE(turns, 4); // a hundred milliseconds in slices of twelve
}

TEST_F(PageTest, TheOverlayFollowsThePagesSize)
{
    start(1000000);
    m_page.resize(500, 400);
    const QSize size(500, 400);
    EXPECT_TRUE(waitFor([&] { return overlay().size() == size; }));
    EXPECT_TRUE(
        waitFor([&] { return overlay().findChild<QProgressIndicator*>()->size() == size; }));
    m_page.cancelJob();
}

TEST_F(PageTest, ThePageIsSeldomPaintedUnderTheWheel)
{
    PaintCounter field;
    m_page.field->installEventFilter(&field);
    start(1000000);
    PaintCounter wheel;
    overlay().findChild<QProgressIndicator*>()->installEventFilter(&wheel);
    field.count = 0;
    ASSERT_TRUE(waitFor([&wheel] { return wheel.count > 20; }));
    EXPECT_LT(3 * field.count, wheel.count);
    m_page.cancelJob();
    EXPECT_TRUE(waitFor([&field] { return field.count > 0; }));
}

TEST_F(PageTest, TheOverlayLooksAsThePageBelowIt)
{
    start(1000000);
    overlay().findChild<QProgressIndicator*>()->hide();
    overlay().findChild<QFrame*>()->hide();
    const QImage covered = m_page.grab().toImage();
    overlay().hide();
    EXPECT_EQ(covered, m_page.grab().toImage());
    m_page.cancelJob();
}

TEST_F(PageTest, TheOverlayShowsThePageItselfOnceThatHasChanged)
{
    const std::function<void(OnePage&)> changes[] = {
        [](OnePage& page) { page.resize(700, 500); },
        [](OnePage& page) { page.setPalette(QPalette(Qt::darkGreen)); },
        [](OnePage& page) { page.setFont(QFont(page.font().family(), 30)); },
        [](OnePage& page) { page.setStyleSheet("QLineEdit { background: red; }"); }};
    for (const auto& change : changes) {
        start(1000000);
        overlay().findChild<QProgressIndicator*>()->hide();
        overlay().findChild<QFrame*>()->hide();
        change(m_page);
        QTest::qWait(20);
        const QImage covered = m_page.grab().toImage();
        overlay().hide();
        EXPECT_EQ(covered, m_page.grab().toImage()) << &change - changes;
        m_page.cancelJob();
    }
}

TEST_F(PageTest, WhatThePageFillsInDuringAJobIsSeen)
{
    start(1000000);
    overlay().findChild<QProgressIndicator*>()->hide();
    m_page.field->setText("arrived");
    const auto seen = [this] {
        overlay().findChild<QFrame*>()->hide();
        const QImage covered = m_page.grab().toImage();
        overlay().hide();
        const QImage page = m_page.grab().toImage();
        overlay().show();
        return covered == page;
    };
    EXPECT_FALSE(seen()); // still the picture
    EXPECT_TRUE(waitFor(seen));
    m_page.cancelJob();
}

TEST_F(PageTest, TheWheelIsGoneAfterTheJob)
{
    start(60);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(waitFor([this] { return !overlay().findChild<QProgressIndicator*>(); }));
}

TEST_F(PageTest, DestroyingThePageDropsItsJob)
{
    bool ended = false;
    {
        OnePage page;
        page.startJob("Endless", std::make_unique<CountingJob>(1000000, m_done, m_alive),
                      [&ended](CountingJob&, bool) { ended = true; });
        EXPECT_TRUE(page.isBusy());
    }
    EXPECT_EQ(m_alive, 0);
    QTest::qWait(30);
    EXPECT_FALSE(ended);
}

TEST_F(PageTest, APageInViewLooksForChanges)
{
    EXPECT_TRUE(waitFor([this] { return m_page.looks >= 2; }));
}

TEST_F(PageTest, NothingLooksForChangesOutOfViewOrBesideAJobOrBelowADialog)
{
    start(1000000);
    const TimerEvents besideJob(&m_page);
    EXPECT_TRUE(waitFor([&] { return besideJob.count() >= 2; }));
    EXPECT_EQ(m_page.looks, 0);
    m_page.cancelJob();
    QDialog dialog(&m_page);
    dialog.open();
    const TimerEvents belowDialog(&m_page);
    EXPECT_TRUE(waitFor([&] { return belowDialog.count() >= 2; }));
    EXPECT_EQ(m_page.looks, 0);
    dialog.close();
    m_page.hide();
    OnePage inView;
    inView.show();
    EXPECT_TRUE(waitFor([&] { return inView.looks >= 2; }));
    EXPECT_EQ(m_page.looks, 0);
}

TEST_F(PageTest, AnAuditLineIsLoggedAndNotShown)
{
    m_page.log("C:\\a.ini: \"A\": absent -> \"1\"");
    EXPECT_EQ(m_page.statusText(), QString());
    QFile log(ApplicationLog::path());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().endsWith(" : C:\\a.ini: \"A\": absent -> \"1\"\n"));
}

TEST_F(PageTest, AReportIsShownAndLogged)
{
    m_page.report(Page::Report::Error, "It was refused.");
    EXPECT_EQ(m_page.statusText().toStdString(), "It was refused.");
    QFile log(ApplicationLog::path());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QByteArray lines = log.readAll();
    EXPECT_TRUE(lines.contains("[ERROR] "));
    EXPECT_TRUE(lines.endsWith(" : It was refused.\n"));
}

QStringList alerts;

void noteAlert(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Alert)
        alerts += event->accessibleInterface()->text(QAccessible::Name);
}

TEST_F(PageTest, AStatusIsReadOutOnce)
{
    // As a running assistive tool does.
    QPlatformAccessibility* platform =
        QGuiApplicationPrivate::platformIntegration()->accessibility();
    platform->setActive(true);
    const auto former = QAccessible::installUpdateHandler(&noteAlert);
    m_page.setStatus("It is done.");
    m_page.setStatus("It is done.");
    m_page.setStatus(QString());
    QAccessible::installUpdateHandler(former);
    platform->setActive(false);
    EXPECT_EQ(alerts, QStringList("It is done."));
}

TEST_F(PageTest, AStatusIsShownAndNotLogged)
{
    const auto logged = [] {
        QFile log(ApplicationLog::path());
        return log.open(QIODevice::ReadOnly) && log.readAll().contains("Only seen here");
    };
    m_page.setStatus("Only seen here");
    EXPECT_EQ(m_page.statusText().toStdString(), "Only seen here");
    EXPECT_FALSE(logged());
}

// A label wraps between words only: one that is longer than a line would widen the window.
TEST_F(PageTest, ALongWordIsShortenedInTheStatusAlone)
{
    const QString text = QStringLiteral("No such name: ") + QString(300, QLatin1Char('W'));
    const int width = m_page.minimumSizeHint().width();
    m_page.report(Page::Report::Error, text);
    EXPECT_EQ(m_page.statusText(), text);
    EXPECT_LE(m_page.minimumSizeHint().width(), qMax(width, 640));
    QFile log(ApplicationLog::path());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().contains(text.toUtf8()));
}

TEST_F(PageTest, TheIconOfAReportFollowsThePalette)
{
    m_page.report(Page::Report::Error, "It was refused.");
    const auto icon = [this] {
        const auto* label = m_page.findChild<QLabel*>("statusIcon");
        return label->pixmap(Qt::ReturnByValue).toImage();
    };
    const QImage light = icon();
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Highlight, Qt::yellow);
    QApplication::setPalette(dark);
    EXPECT_TRUE(waitFor([&] { return icon() != light; }));
    QApplication::setPalette(before);
    EXPECT_TRUE(waitFor([&] { return icon() == light; }));
}

} // namespace

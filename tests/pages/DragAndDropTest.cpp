#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/PageFixture.h"
#include "tests/support/Display.h"

#include "crypto/MD5.h"
#include "tests/support/WaitFor.h"

#include <QAbstractItemModel>
#include <QDrag>
#include <QMimeData>
#include <QProcess>
#include <QTabWidget>
#include <QTableView>

namespace {

// A file's icon, as a file manager shows it: a press starts to drag it, with its path as a text for
// those who take no files.
class FileIcon : public QWidget
{
public:
    explicit FileIcon(const QUrl& file)
        : QWidget(nullptr, Qt::X11BypassWindowManagerHint | Qt::WindowStaysOnTopHint), m_file(file)
    {
        setGeometry(0, 0, 40, 40);
    }

    Qt::DropAction taken = Qt::IgnoreAction;
    bool done = false;

protected:
    void mousePressEvent(QMouseEvent* /*event*/) override
    {
        auto* contents = new QMimeData;
        contents->setUrls({m_file});
        contents->setText(m_file.toString());
        auto* drag = new QDrag(this);
        drag->setMimeData(contents);
        taken = drag->exec(Qt::CopyAction);
        done = true;
    }

private:
    QUrl m_file;
};

QStringList moveTo(const QPoint& point)
{
    return {"mousemove", QString::number(point.x()), QString::number(point.y()), "sleep", "0.1"};
}

// A real pointer carries a file from a window of its own into the application's.
class DragAndDrop : public PageFixture
{
protected:
    void openActive(const QString& name)
    {
        m_file.write("; by hand\n[Net]\nMask=255\n");
        open(name);
        m_window.move(60, 60);
        m_window.activateWindow();
        ASSERT_TRUE(waitForActive(&m_window));
    }

    // What the target made of the file.
    Qt::DropAction drop(const QUrl& file, const QWidget& target)
    {
        FileIcon icon(file);
        icon.show();
        EXPECT_TRUE(waitForExposed(&icon));
        const QPoint end = target.mapToGlobal(target.rect().center());
        // Detached: a drag is moved by the events that its own loop takes.
        QProcess hand;
        hand.start("xdotool", moveTo({20, 20}) + QStringList{"mousedown", "1", "sleep", "0.1"} +
                                  moveTo({30, 30}) + moveTo(end - QPoint(8, 2)) +
                                  moveTo(end - QPoint(3, 1)) + moveTo(end) +
                                  QStringList{"mouseup", "1"});
        EXPECT_TRUE(waitFor([&icon] { return icon.done; }));
        EXPECT_TRUE(waitFor([&hand] { return hand.state() == QProcess::NotRunning; }));
        return icon.taken;
    }
    Qt::DropAction drop(const QWidget& target)
    {
        return drop(QUrl::fromLocalFile(m_file.path()), target);
    }

    QWidget& named(const QString& name) { return *page()->findChild<QWidget*>(name); }
    int rows(const QString& table)
    {
        return page()->findChild<QTableView*>(table)->model()->rowCount();
    }

    ProfileFixture m_file;
};

class DropOnTheProfilesPage : public DragAndDrop, public testing::WithParamInterface<const char*>
{
};

TEST_P(DropOnTheProfilesPage, OpensTheFile)
{
    openActive("profiles");
    // Once into an empty page, and once more when the control shows something.
    for (const int lines : {3, 2}) {
        EXPECT_EQ(drop(named(GetParam())), Qt::CopyAction);
        EXPECT_TRUE(waitFor([this, lines] { return rows("lines") == lines; })) << lines;
        EXPECT_EQ(rows("readings"), 1);
        EXPECT_EQ(control<QLineEdit>("Profile file")->text(), m_file.path());
        EXPECT_EQ(named("value").property("text").toString().count("file:"), 0);
        m_file.write("[Net]\nMask=254\n");
    }
}

INSTANTIATE_TEST_SUITE_P(Controls, DropOnTheProfilesPage,
                         testing::Values("lines", "readings", "value", "file", "backup"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(DragAndDrop, AnAddressIsNotTaken)
{
    openActive("profiles");
    EXPECT_EQ(drop(QUrl("https://example.org/a.ini"), named("lines")), Qt::IgnoreAction);
    EXPECT_EQ(rows("lines"), 0);
    EXPECT_EQ(status(), "");
}

TEST_F(DragAndDrop, AFileOnTheDigestTextIsDigested)
{
    openActive("crypto");
    page()->findChild<QTabWidget*>()->setCurrentIndex(1);
    QTest::qWait(50);
    auto* text = control<QPlainTextEdit>("Text");
    EXPECT_EQ(drop(*text), Qt::CopyAction);
    auto* path = control<QLineEdit>("Path of the file");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->text(), m_file.path());
    EXPECT_EQ(text->toPlainText(), "");
    ASSERT_TRUE(Display::activate(m_window));
    EXPECT_TRUE(Display::xdotool({"key", "Return"}));
    EXPECT_TRUE(waitFor([this] {
        return control<QLineEdit>("MD5")->text().toStdString() ==
               MD5().Encode("; by hand\n[Net]\nMask=255\n");
    })) << status();
}

} // namespace

#include "app/ApplicationLog.h"
#include "tests/pages/MessageBoxes.h"
#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/WaitFor.h"
#include "window/BusyOverlay.h"

#include <QCheckBox>
#include <QUndoStack>

namespace {

class ProfileUndoTest : public ProfilesPageTest
{
protected:
    static constexpr char tidy[] = "[Net]\nHost=one\nMask=255\n";

    void SetUp() override { m_file.write(tidy); }

    void setMask(const char* value, int family = wide)
    {
        request(QStringLiteral("Net"), QStringLiteral("Mask"), QLatin1String(value), family);
    }
    QUndoStack& changes() const { return m_probe.page().undoStack(); }
    void undo() const
    {
        changes().undo();
        ASSERT_TRUE(m_probe.settle());
    }
    void redo() const
    {
        changes().redo();
        ASSERT_TRUE(m_probe.settle());
    }
    static QByteArray logged() { return ProfileFixture::bytesOf(ApplicationLog::path()); }
};

TEST_F(ProfileUndoTest, UndoesAndMakesAgainWhatEitherFamilyWrote)
{
    for (const int family : {wide, narrow}) {
        m_file.write(tidy);
        open();
        setMask("1", family);
        const QByteArray changed = m_file.bytes();
        ASSERT_TRUE(changed.contains("Mask=1\n")) << status().toStdString();
        undo();
        EXPECT_EQ(m_file.bytes(), tidy);
        EXPECT_EQ(row("readings", 1), QStringList({"Net", "Mask", "255", "=", "255"}));
        EXPECT_TRUE(status().startsWith(QStringLiteral("Undone: Set \"Mask\" in profile.ini.")));
        redo();
        EXPECT_EQ(m_file.bytes(), changed);
        EXPECT_TRUE(status().startsWith(QStringLiteral("Made again: ")));
    }
}

TEST_F(ProfileUndoTest, PutsBackTheBytesThatARewritingLost)
{
    constexpr char hand[] = "; why\r\n[Net]\r\nMask=255\r\nOther=\xe4";
    m_file.write(hand);
    open();
    setMask("1", narrow);
    accept();
    ASSERT_NE(m_file.bytes(), hand);
    undo();
    EXPECT_EQ(m_file.bytes(), hand);
}

TEST_F(ProfileUndoTest, LeavesAPathThatIsBeingTyped)
{
    open();
    setMask("1");
    m_probe.type("file", QStringLiteral("/half/typ"));
    undo();
    EXPECT_EQ(m_probe.text("file"), QStringLiteral("/half/typ"));
}

TEST_F(ProfileUndoTest, NamesTheChange)
{
    open();
    setMask("1");
    EXPECT_EQ(changes().undoText(), QStringLiteral("Set \"Mask\" in profile.ini"));
}

TEST_F(ProfileUndoTest, GoesBackStepByStep)
{
    open();
    setMask("1");
    setMask("2");
    undo();
    EXPECT_TRUE(m_file.bytes().contains("Mask=1\n"));
    undo();
    EXPECT_EQ(m_file.bytes(), tidy);
    EXPECT_FALSE(changes().canUndo());
}

TEST_F(ProfileUndoTest, RemovesAFileThatTheChangeMade)
{
    const QString path = m_file.folder() + QStringLiteral("/new.ini");
    open(path);
    setMask("1");
    ASSERT_TRUE(QFile::exists(path));
    undo();
    EXPECT_FALSE(QFile::exists(path));
    redo();
    EXPECT_EQ(ProfileFixture::bytesOf(path), "[Net]\nMask=1\n");
    undo();
    setMask("2"); // nobody else has deleted it
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(ProfileFixture::bytesOf(path), "[Net]\nMask=2\n");
}

TEST_F(ProfileUndoTest, AsksBeforeItLosesWhatOthersWrote)
{
    constexpr char others[] = "[Net]\nMask=3\n";
    open();
    setMask("1");
    setMask("2");
    m_file.write(others);
    MessageBoxAnswer cancel(QMessageBox::Cancel);
    undo();
    EXPECT_TRUE(cancel.text().contains(QStringLiteral("is no longer as the change")));
    EXPECT_EQ(m_file.bytes(), others);
    EXPECT_EQ(status(), QStringLiteral("The file stays as it is."));
    EXPECT_TRUE(becomes([this] { return changes().canRedo(); }, false)); // as before
    const MessageBoxAnswer yes(QMessageBox::Yes);
    undo();
    EXPECT_EQ(m_file.bytes(), "[Net]\nHost=one\nMask=1\n");
    EXPECT_TRUE(changes().canUndo());
}

TEST_F(ProfileUndoTest, ARedoThatIsNotWantedCanBeMadeLater)
{
    constexpr char others[] = "[Net]\nMask=3\n";
    open();
    setMask("1");
    undo();
    m_file.write(others);
    const MessageBoxAnswer cancel(QMessageBox::Cancel);
    redo();
    EXPECT_EQ(m_file.bytes(), others);
    EXPECT_TRUE(becomes([this] { return changes().canRedo(); }, true));
    EXPECT_FALSE(changes().canUndo());
}

TEST_F(ProfileUndoTest, SaysWhenTheFileCannotBePutBack)
{
    open();
    setMask("1");
    QFile::remove(m_file.path());
    QDir().mkdir(m_file.path());
    const MessageBoxAnswer yes(QMessageBox::Yes);
    undo();
    EXPECT_TRUE(status().endsWith(QStringLiteral("could not be put back.")))
        << status().toStdString();
    EXPECT_FALSE(changes().canRedo());
}

TEST_F(ProfileUndoTest, TheLogTellsOfEachChange)
{
    open();
    setMask("1");
    EXPECT_TRUE(logged().endsWith(" (wide) [Net]: \"Mask\": \"255\" -> \"1\"\n") ||
                logged().contains(" (wide) [Net]: \"Mask\": \"255\" -> \"1\"\n"));
    undo();
    const QByteArray place = m_file.path().toUtf8() + " (wide) [Net]: \"Mask\": ";
    EXPECT_TRUE(logged().contains("Undone: " + place + "\"1\" -> \"255\"\n"));
    redo();
    EXPECT_TRUE(logged().contains("Redone: " + place + "\"255\" -> \"1\"\n"));
    request(QStringLiteral("Net"), QStringLiteral("Password"), QStringLiteral("hunter2"), narrow);
    EXPECT_TRUE(logged().contains(" (narrow) [Net]: \"Password\": absent -> (not logged)\n"));
    EXPECT_FALSE(logged().contains("hunter2"));
}

TEST_F(ProfileUndoTest, WritingIntoADeletedFileIsAskedFor)
{
    open();
    QFile::remove(m_file.path());
    setMask("1");
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(QStringLiteral("has been deleted since it was read")));
    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::Cancel));
    box->button(QMessageBox::Cancel)->click();
    EXPECT_FALSE(QFile::exists(m_file.path()));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    setMask("1"); // it is as gone as before
    box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    box->button(QMessageBox::Yes)->click();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=1\n");
}

TEST_F(ProfileUndoTest, WritingIntoAReplacedFileIsAskedFor)
{
    open();
    ASSERT_TRUE(QFile::rename(m_file.path(), m_file.path() + QStringLiteral(".old")));
    m_file.write("[Net]\nMask=7\n");
    setMask("1");
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(QStringLiteral("has been replaced")));
    box->button(QMessageBox::Cancel)->click();
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=7\n");
}

// Counts the paintings of the overlay's words while the file is as it was.
class PaintWatch : public QObject
{
public:
    PaintWatch(BusyOverlay& overlay, const ProfileFixture& file)
        : m_overlay(overlay), m_file(file), m_before(file.bytes())
    {
        qApp->installEventFilter(this);
    }
    const QStringList& words() const { return m_words; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* label = qobject_cast<QLabel*>(watched);
        if (event->type() == QEvent::Paint && label && m_overlay.isAncestorOf(label) &&
            m_file.bytes() == m_before)
            m_words << label->text();
        return false;
    }

private:
    BusyOverlay& m_overlay;
    const ProfileFixture& m_file;
    QByteArray m_before;
    QStringList m_words;
};

TEST_F(ProfileUndoTest, ALongWriteIsAnnouncedBeforeItBegins)
{
    QByteArray large = "[Net]\n";
    for (int i = 100000; i < 102000; ++i)
        large += "key" + QByteArray::number(i) + "=value\n";
    m_file.write("[Net]\nMask=255\n");
    open();
    m_file.write(large);
    m_probe.control<QCheckBox>("backup").setChecked(false);
    auto* overlay = m_probe.page().findChild<BusyOverlay*>();
    PaintWatch watch(*overlay, m_file);
    setMask("1");
    for (const char* words : {"Trying the change on a copy of 31 kB", "Writing 31 kB"})
        EXPECT_TRUE(watch.words().contains(QLatin1String(words)))
            << watch.words().join('|').toStdString();
}

} // namespace

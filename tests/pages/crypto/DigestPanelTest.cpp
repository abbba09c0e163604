#include "tests/pages/ShownToolTip.h"
#include "tests/pages/crypto/CryptoPageTest.h"

#include "crypto/MD5.h"
#include "crypto/Sha256.h"

#include <QDragEnterEvent>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMimeData>
#include <QTemporaryDir>

namespace {

class DigestPanelTest : public CryptoPageTest
{
protected:
    void SetUp() override
    {
        CryptoPageTest::SetUp();
        chooseTab(1);
    }

    void digestText(const QString& text, const QString& second = {})
    {
        button<QRadioButton>("Of a te&xt")->setChecked(true);
        control<QPlainTextEdit>("Text")->setPlainText(text);
        control<QLineEdit>("Second text of KdEncode")->setText(second);
        press("Digest &now");
        waitForJob();
    }

    void digestFile(const QString& path)
    {
        button<QRadioButton>("Of a fil&e")->setChecked(true);
        control<QLineEdit>("Path of the file")->setText(path);
        press("Digest &now");
    }

    QString madeFile(const std::string& content, const QString& name = "file")
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content.data(), static_cast<qint64>(content.size()));
        return file.fileName();
    }

    std::string result(const QString& name)
    {
        return control<QLineEdit>(name)->text().toStdString();
    }
    QGroupBox& results() { return *page()->findChild<QGroupBox*>("results"); }
    std::string notes() { return page()->findChild<QLabel*>("notes")->text().toStdString(); }

    void expectDigestsOf(const std::string& text, const std::string& second = {})
    {
        EXPECT_EQ(result("SHA-256"), Sha256().getHexMessageDigest(text));
        EXPECT_EQ(result("Sha256Encode"), Encrypt::Sha256Encode(text));
        EXPECT_EQ(result("MD5"), MD5().Encode(text));
        EXPECT_EQ(result("KdEncode"), Encrypt::KdEncode(text, second));
    }

    QTemporaryDir m_folder;
};

TEST_F(DigestPanelTest, GivesWhatTheClassesGiveForATextInUtf8)
{
    for (const char* text : {"abc", "", "The quick brown fox", "\u7801\u5934 quay", "a\u00a0b"}) {
        digestText(QString::fromUtf8(text), "second");
        expectDigestsOf(text, "second");
    }
}

TEST_F(DigestPanelTest, GivesWhatTheClassesGiveForAFile)
{
    std::string content;
    for (int i = 0; i < 3000000; ++i)
        content += static_cast<char>(i * 7 + i / 256 + 1);
    digestFile(madeFile(content));
    waitForJob();
    expectDigestsOf(content);
    EXPECT_EQ(status(), "Bytes digested: 3,000,000.");
}

// One & would make a mnemonic of the letter behind it.
TEST_F(DigestPanelTest, NamesAFileWithAnAmpersand)
{
    digestFile(madeFile("abc", "R&D.txt"));
    waitForJob();
    EXPECT_EQ(results().title(), "Results for R&&D.txt");
    EXPECT_EQ(results().toolTip(), "");
}

// The group is as wide as its title.
TEST_F(DigestPanelTest, NamesAFileWithALongName)
{
    const QString name = "<b>" + QString(240, 'm') + "&end";
    digestFile(madeFile("abc", name));
    waitForJob();
    const QString title = results().title();
    EXPECT_TRUE(title.startsWith("Results for <b>mm")) << title.toStdString();
    EXPECT_TRUE(title.endsWith("m&&end")) << title.toStdString();
    EXPECT_LE(results().minimumSizeHint().width(), 800);
    EXPECT_LE(results().fontMetrics().horizontalAdvance(title), results().width());
    EXPECT_EQ(m_window.size(), QSize(800, 600));
    EXPECT_EQ(shownToolTip(results().toolTip()), name);
    digestText("abc");
    EXPECT_EQ(results().title(), "Results for the text");
    EXPECT_EQ(results().toolTip(), "");
}

TEST_F(DigestPanelTest, SaysWhereTheMd5DepartsFromTheStandard)
{
    digestText(QStringLiteral("\u00e4bc"));
    EXPECT_EQ(notes(), "The library's MD5 departs from RFC 1321 here, which gives "
                       "03b36286edab0a38ed65aecf98a7833a, because of the text: it holds bytes of "
                       "0x80 or above.");
}

TEST_F(DigestPanelTest, SaysNothingOfTheStandardWhereTheDigestsAgree)
{
    digestText("abc");
    EXPECT_EQ(notes(), "");
    EXPECT_EQ(result("MD5"), "900150983cd24fb0d6963f7d28e17f72");
    // The only high bytes end their word of four: nothing is extended.
    digestFile(madeFile("abc\xe4"));
    waitForJob();
    EXPECT_EQ(notes(), "");
}

TEST_F(DigestPanelTest, WorksOffTheLongPaddingInSlices)
{
    digestText(QString(60, 'a'));
    EXPECT_EQ(result("MD5"), MD5().Encode(std::string(60, 'a')));
    EXPECT_NE(notes().find("its length modulo 64 is 57 to 63"), std::string::npos) << notes();
}

TEST_F(DigestPanelTest, SaysHowFarTheFingerprintOfBinaryDataGoes)
{
    const std::string content("ab\0cd", 5);
    digestFile(madeFile(content));
    waitForJob();
    expectDigestsOf(content);
    EXPECT_EQ(notes(),
              "Sha256Encode and KdEncode read only the 2 bytes before the first zero byte.");
}

TEST_F(DigestPanelTest, RefusesWhatIsNoReadableFile)
{
    digestText("abc");
    const QString missing = m_folder.filePath("missing");
    const std::pair<QString, QString> rows[] = {
        {"", "Enter the path of a file first."},
        {missing, "There is no file " + missing + "."},
        {m_folder.path(), m_folder.path() + " is not a regular file."},
        {"/dev/zero", "/dev/zero is not a regular file."},
    };
    for (const auto& [path, message] : rows) {
        digestFile(path);
        EXPECT_EQ(status(), message.toStdString());
        EXPECT_EQ(result("MD5"), "900150983cd24fb0d6963f7d28e17f72");
    }
}

TEST_F(DigestPanelTest, CancelKeepsTheOlderResults)
{
    digestText("abc");
    QFile file(madeFile({}));
    ASSERT_TRUE(file.resize(qint64(1) << 30)); // sparse
    digestFile(file.fileName());
    ASSERT_TRUE(page()->isBusy());
    QTest::qWait(50);
    QTest::mouseClick(button("Cancel"), Qt::LeftButton);
    EXPECT_FALSE(page()->isBusy());
    EXPECT_EQ(status(), "Cancelled. The results shown are older.");
    EXPECT_EQ(result("MD5"), "900150983cd24fb0d6963f7d28e17f72");
}

TEST_F(DigestPanelTest, TakesADroppedFile)
{
    const QString path = madeFile("abc");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QWidget* target = control<QPlainTextEdit>("Text")->parentWidget()->parentWidget();
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_EQ(control<QLineEdit>("Path of the file")->text(), path);
    QTest::keyClick(control<QLineEdit>("Path of the file"), Qt::Key_Return);
    waitForJob();
    expectDigestsOf("abc");
}

} // namespace

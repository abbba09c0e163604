#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QTextCodec>

namespace {

// "Stadt" in Latin-1, "city" in GBK, and ASCII.
constexpr char mixed[] = "[S]\nort=M\xfcnchen\r\ncity=\xb1\xb1\xbe\xa9\nplain=1\n";

class ProfileEncodingTest : public ProfilesPageTest
{
protected:
    QString form() const { return m_probe.control<QLabel>("form").text(); }
    QComboBox& encoding() const { return m_probe.control<QComboBox>("encoding"); }
    void choose(const char* name) const
    {
        encoding().setCurrentIndex(encoding().findText(QLatin1String(name)));
    }
    QString line(int number) const { return row("lines", number).last(); }
    bool isMarked(int number) const
    {
        return !model("lines").index(number, 3).data(Qt::DecorationRole).isNull();
    }
};

struct Form
{
    const char* name;
    QByteArray bytes;
    const char* text;
};

class ProfileFormTest : public ProfileEncodingTest, public testing::WithParamInterface<Form>
{
};

TEST_P(ProfileFormTest, IsNamed)
{
    m_file.write(GetParam().bytes);
    open();
    EXPECT_EQ(form(), QStringLiteral("profile.ini. ") + QString::fromUtf8(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileFormTest,
    testing::Values(
        Form{"Plain", "[S]\na=1\n", "Encoding: UTF-8. Byte order mark: no. Line ends: LF 2."},
        Form{"Returns", "[S]\r\na=1\r\n",
             "Encoding: UTF-8. Byte order mark: no. Line ends: CRLF 2."},
        Form{"Mark", "\xef\xbb\xbf[S]\n\xc3\xa4=1",
             "Encoding: UTF-8. Byte order mark: yes. Line ends: LF 1."},
        Form{"Mixed", "[S]\r\na=1\nb=2\nc\rd",
             "Encoding: UTF-8. Byte order mark: no. Line ends: mixed, LF 2, CRLF 1, CR 1."},
        Form{"NoEnd", "[S]", "Encoding: UTF-8. Byte order mark: no. Line ends: none."},
        Form{"Other", mixed,
             "Encoding: not UTF-8 (lines: 2, the first is 2). Byte order mark: no. Line ends: "
             "mixed, LF 3, CRLF 1."},
        Form{"Utf16", QByteArray("\xff\xfe[\0S\0]\0\r\0\n\0a\0=\0\x31\0", 18),
             "Encoding: UTF-16LE. Byte order mark: yes. Line ends: CRLF 1."},
        Form{"Utf16BigEndian", QByteArray("\xfe\xff\0[\0S\0]\0\n\0a\0=\0\x31", 16),
             "Encoding: UTF-16BE. Byte order mark: yes. Line ends: LF 1."}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ProfileEncodingTest, ShowsLinesReadablyInTheChosenEncoding)
{
    m_file.write(mixed);
    open();
    ASSERT_TRUE(encoding().isVisible());
    EXPECT_EQ(line(1), QString::fromUtf8("ort=München"));
    choose("GBK (GB18030)");
    EXPECT_EQ(line(2), QString::fromUtf8("city=北京"));
    EXPECT_EQ(line(3), QStringLiteral("plain=1"));
    encoding().setCurrentIndex(encoding().count() - 1);
    EXPECT_EQ(line(1), QString::fromUtf8("ort=M\ufffdnchen"));
}

TEST_F(ProfileEncodingTest, MarksLinesThatAreNotUtf8AndSaysSo)
{
    m_file.write(mixed);
    open();
    EXPECT_FALSE(isMarked(0));
    EXPECT_TRUE(isMarked(1));
    EXPECT_TRUE(isMarked(2));
    EXPECT_FALSE(isMarked(3));
    m_probe.control<QTableView>("lines").selectRow(1);
    EXPECT_TRUE(status().endsWith(
        QStringLiteral("Not UTF-8: the calls of both families lose what it says.")))
        << status().toStdString();
}

TEST_F(ProfileEncodingTest, LeavesTheReadingsOfTheServicesAlone)
{
    m_file.write(mixed);
    open();
    const QString lost = QString::fromUtf8("M\ufffdnchen");
    EXPECT_EQ(row("readings", 0), QStringList({"S", "ort", lost, "=", lost}));
}

TEST_F(ProfileEncodingTest, AsksForNoEncodingWhereAllIsUtf8)
{
    open();
    EXPECT_FALSE(encoding().isVisible());
}

TEST_F(ProfileEncodingTest, FindsWhatIsShown)
{
    m_file.write(mixed);
    open();
    choose("GBK (GB18030)");
    m_probe.page().find();
    m_probe.type("find", QString::fromUtf8("北"));
    QTest::keyClick(&m_probe.control<QWidget>("find"), Qt::Key_Return);
    const auto& lines = m_probe.control<QTableView>("lines");
    EXPECT_TRUE(becomes([&] { return lines.currentIndex().row(); }, 2));
}

TEST_F(ProfileEncodingTest, ShowsTheLinesOfAnotherEncodingThatAMarkTells)
{
    QByteArray bytes = "\xff\xfe";
    const QString lines = QString::fromUtf8("[S]\r\nk=节\n");
    bytes.append(reinterpret_cast<const char*>(lines.utf16()), lines.size() * 2);
    m_file.write(bytes);
    open();
    ASSERT_EQ(model("lines").rowCount(), 2);
    EXPECT_EQ(line(0), QStringLiteral("[S]"));
    EXPECT_EQ(line(1), QString::fromUtf8("k=节"));
    EXPECT_EQ(row("lines", 1)[1], QStringLiteral("kept"));
}

TEST(ProfileEncodings, ThatAreLikelyWhereTheLanguageIsSpokenComeFirst)
{
    const auto first = [](WindowProbe::Language language) {
        const WindowProbe probe("profiles", language);
        return probe.control<QComboBox>("encoding").itemText(0).toStdString();
    };
    EXPECT_EQ(first(WindowProbe::Language::English), "windows-1252");
    EXPECT_EQ(first(WindowProbe::Language::Chinese), "GBK (GB18030)");
}

} // namespace

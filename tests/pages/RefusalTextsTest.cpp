#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QDir>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr char narrowRefusal[] = "Nothing written: the narrow family would not read this back.";
constexpr char wideRefusal[] = "Nothing written: the wide family would not read this back";

struct Input
{
    const char* name;
    const char* section;
    const char* key;
    const char* value;
    int family;
    const char* message;
};

class RefusedChange : public testing::TestWithParam<Input>
{
};

TEST_P(RefusedChange, IsRefusedWithItsReason)
{
    constexpr char text[] = "[Net]\nMask=255\n";
    const ProfileFixture file;
    file.write(text);
    const WindowProbe probe("profiles");
    probe.type("file", file.path());
    QTest::keyClick(&probe.control<QWidget>("file"), Qt::Key_Return);
    ASSERT_TRUE(probe.settle());
    probe.type("section", QString::fromUtf8(GetParam().section));
    probe.type("key", QString::fromUtf8(GetParam().key));
    probe.type("value", QString::fromUtf8(GetParam().value));
    probe.control<QComboBox>("family").setCurrentIndex(GetParam().family);
    probe.click("write");
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(probe.page().statusText().toStdString().find(GetParam().message), 0U)
        << probe.page().statusText().toStdString();
    EXPECT_EQ(file.bytes(), text);
    EXPECT_EQ(QDir(file.folder()).entryList(QDir::Files), QStringList("profile.ini"));
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, RefusedChange,
    testing::Values(Input{"NoKey", "S", "", "v", 0, "Type a key first."},
                    Input{"NoNarrowKey", "S", "", "v", 1, "Type a key first."},
                    Input{"NoNarrowSection", "", "k", "v", 1, "Type a section first."},
                    Input{"EqualsInNarrowValue", "S", "k", "a=b", 1, narrowRefusal},
                    Input{"EqualsInNarrowKey", "S", "a=b", "v", 1, narrowRefusal},
                    Input{"SpaceAtNarrowValue", "S", "k", " v", 1, narrowRefusal},
                    Input{"SpaceAtNarrowKey", "S", "k ", "v", 1, narrowRefusal},
                    Input{"BracketAtNarrowKey", "S", "[k", "v", 1, narrowRefusal},
                    Input{"BeyondTheBasicPlane", "S", "k", "\xf0\x9f\x98\x80", 0, wideRefusal}),
    [](const auto& row) { return std::string(row.param.name); });

struct Pattern
{
    const char* text;
    const char* message;
};

class RefusedPattern : public testing::TestWithParam<Pattern>
{
};

TEST_P(RefusedPattern, IsRefusedWithItsReason)
{
    const ProfileFixture file;
    file.write("text");
    const WindowProbe probe("files");
    for (const QString& pattern : {file.folder() + "/*", QString(GetParam().text)}) {
        probe.type("pattern", pattern);
        probe.click("search");
        ASSERT_TRUE(probe.settle());
    }
    EXPECT_EQ(probe.page().statusText().toStdString(), GetParam().message);
    EXPECT_EQ(probe.control<QTableView>("entries").model()->rowCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, RefusedPattern,
    testing::Values(Pattern{"", "Type a pattern first, such as /etc/*.conf."},
                    Pattern{"*.txt", "The service finds nothing for a pattern without a "
                                     "directory, whatever the working directory holds. Put one "
                                     "before it, such as ./*.txt."}));

} // namespace

#include "tests/pages/profiles/ProfilesPageFixture.h"

#include <unistd.h>

namespace {

// A profile of more than any text holds.
class HugeProfileTest : public ProfilesPageTest
{
protected:
    void SetUp() override
    {
        m_file.write("[S]\nk=v\n");
        ASSERT_EQ(truncate(qPrintable(m_file.path()), off_t{1100} * 1024 * 1024), 0);
        open();
    }
};

TEST_F(HugeProfileTest, ShowsItsLinesAndSaysWhatIsNotToldOrWritten)
{
    EXPECT_EQ(model("lines").rowCount(), 3);
    EXPECT_TRUE(row("lines", 1).contains(QStringLiteral("k=v")));
    EXPECT_TRUE(m_probe.control<QLabel>("form").text().contains(QStringLiteral("too large")));
    EXPECT_EQ(model("readings").rowCount(), 0);
    for (const int family : {wide, narrow}) {
        request(QStringLiteral("S"), QStringLiteral("k"), QStringLiteral("w"), family);
        EXPECT_TRUE(status().contains(QStringLiteral("larger than"))) << qPrintable(status());
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("profile.ini")});
}

} // namespace

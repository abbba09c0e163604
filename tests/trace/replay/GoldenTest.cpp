// Recordings of a library that calls every operation and of the sample host library in the
// application, made on each architecture and replayed on this one. `t`, `d`, the date and the paths
// of the machine are masked in them.

#include "tests/trace/replay/ReplayTest.h"

#include <ostream>

namespace replay {
namespace {

struct Golden
{
    const char* file;
    int skipped; ///< calls of which a replay cannot know what they were to find
};

std::ostream& operator<<(std::ostream& stream, const Golden& golden)
{
    return stream << golden.file;
}

class GoldenTest : public ReplayTest, public testing::WithParamInterface<Golden>
{
};

TEST_P(GoldenTest, IsAnsweredHereAsThere)
{
    QFile file(QStringLiteral(QUAYSIDE_GOLDEN "/") + QLatin1String(GetParam().file));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const ReplayReport report = replayWithFiles(file.readAll());
    EXPECT_EQ(differences(report), "");
    EXPECT_FALSE(report.hasCrashed()) << report.crashedIn;
    EXPECT_EQ(report.skippedCount(), GetParam().skipped) << skipped(report).toStdString();
    EXPECT_GE(report.performed, 80);
}

// The sample asks for what is in "/", and where a point is in the application's window.
INSTANTIATE_TEST_SUITE_P(All, GoldenTest,
                         testing::Values(Golden{"amd64/everything.trace", 0},
                                         Golden{"arm64/everything.trace", 0},
                                         Golden{"amd64/slots.trace", 4},
                                         Golden{"arm64/slots.trace", 4}));

} // namespace
} // namespace replay

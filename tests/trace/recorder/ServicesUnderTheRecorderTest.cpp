// The services' own tests, with the recorder around every call.

#include "tests/trace/recorder/RecordedRun.h"

#include <gtest/gtest.h>

namespace {

class ServicesUnderTheRecorder : public testing::TestWithParam<const char*>
{
};

TEST_P(ServicesUnderTheRecorder, PassTheirTests)
{
    if (qstrlen(QUAYSIDE_EMULATOR) > 0)
        GTEST_SKIP() << "an emulator starts no programs of its own kind";
    RecordedRun run;
    run.record({QStringLiteral(QUAYSIDE_TESTS "/platform/") + QLatin1String(GetParam())},
               {"--all", "--text", "100"});
    EXPECT_EQ(run.status(), 0) << run.out().right(4000).toStdString();
    EXPECT_TRUE(run.read(QStringLiteral("recording")).contains("\"n\":20,"));
}

INSTANTIATE_TEST_SUITE_P(Programs, ServicesUnderTheRecorder,
                         testing::Values("services_test", "register_manager_test",
                                         "profile_manager_test", "directory_manager_test",
                                         "font_manager_test", "displays_test"),
                         [](const auto& program) { return std::string(program.param); });

} // namespace

// The services' own tests, with the recorder around every call.

#include "tests/trace/recorder/RecordedRun.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

struct Program
{
    const char* name;
    bool callsByTable; // not if the compiler binds all calls, as it may those of local objects
};

std::ostream& operator<<(std::ostream& stream, const Program& program)
{
    return stream << program.name;
}

class ServicesUnderTheRecorder : public testing::TestWithParam<Program>
{
};

TEST_P(ServicesUnderTheRecorder, PassTheirTests)
{
    if (qstrlen(QUAYSIDE_EMULATOR) > 0)
        GTEST_SKIP() << "an emulator starts no programs of its own kind";
    RecordedRun run;
    run.record({QStringLiteral(QUAYSIDE_TESTS "/platform/") + QLatin1String(GetParam().name)},
               {"--all", "--text", "100"});
    EXPECT_EQ(run.status(), 0) << run.out().right(4000).toStdString();
    const QByteArray recording = run.read(QStringLiteral("recording"));
    EXPECT_TRUE(recording.startsWith("{\"quaysideTrace\":1,"));
    EXPECT_TRUE(!GetParam().callsByTable || recording.contains("{\"n\":1,"));
}

INSTANTIATE_TEST_SUITE_P(
    Programs, ServicesUnderTheRecorder,
    testing::Values(Program{"services_test", true}, Program{"register_manager_test", true},
                    Program{"profile_manager_test", false}, Program{"directory_manager_test", true},
                    Program{"font_manager_test", false}, Program{"displays_test", true}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace

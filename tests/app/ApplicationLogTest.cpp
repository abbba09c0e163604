#include "app/ApplicationLog.h"

#include <gtest/gtest.h>

namespace {

TEST(ApplicationLog, LiesBelowTheStateFolder)
{
    const QString state = QString::fromLocal8Bit(qgetenv("XDG_STATE_HOME"));
    EXPECT_TRUE(ApplicationLog::path().startsWith(state + "/"));
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_TRUE(ApplicationLog::path().contains("/.local/state/"));
    qputenv("XDG_STATE_HOME", state.toLocal8Bit());
}

} // namespace

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

TEST(Scale, IsTheOneThatTheTestsAreRunWith)
{
    const QByteArray factor = qgetenv("QUAYSIDE_TEST_SCALE_FACTOR");
    EXPECT_EQ(factor.isEmpty() ? 1.0 : factor.toDouble(), qGuiApp->devicePixelRatio());
}

} // namespace

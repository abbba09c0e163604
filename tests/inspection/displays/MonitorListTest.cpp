#include "inspection/displays/MonitorList.h"

#include "inspection/displays/MonitorQuery.h"
#include "inspection/displays/SystemMetrics.h"
#include "platform/PlatformServicesImp.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

namespace {

class MonitorListTest : public testing::Test
{
protected:
    int m_handles[3] = {};
    std::vector<Monitor> m_list = {
        {&m_handles[0], QRect(-800, 0, 800, 600), QRect(-800, 30, 800, 570), 0},
        {&m_handles[1], QRect(0, 0, 1920, 1080), {}, 1}};
};

TEST_F(MonitorListTest, NamesAMonitorByItsPlace)
{
    EXPECT_EQ(monitorName(m_list, &m_handles[1]), "Monitor 2");
    EXPECT_EQ(monitorName(m_list, nullptr), "null");
    EXPECT_EQ(monitorName(m_list, &m_handles[2]), handleText(&m_handles[2]));
}

TEST_F(MonitorListTest, HasCaptionsFromTheLongestToTheShortest)
{
    EXPECT_EQ(monitorCaptions(m_list, m_list[0]),
              QStringList({"Monitor 1\n800 \u00d7 600", "Monitor 1", "1"}));
    EXPECT_EQ(monitorCaptions(m_list, m_list[1]),
              QStringList({"Monitor 2\n1920 \u00d7 1080\nPrimary", "Monitor 2\n1920 \u00d7 1080",
                           "Monitor 2", "2"}));
}

TEST_F(MonitorListTest, ShowsEdgesAndFlagsAsInTheRecord)
{
    EXPECT_EQ(edgesText(m_list[0].work), "-800, 30, -1, 599");
    EXPECT_EQ(flagsText(m_list[0]), "0");
    EXPECT_EQ(flagsText(m_list[1]), "1 (primary)");
}

TEST(MonitorQuery, AsksForAPointWithEachFlag)
{
    QScreen* primary = QGuiApplication::primaryScreen();
    const QPoint beside = primary->geometry().bottomRight() + QPoint(50, 0);
    const HMONITOR expected[] = {nullptr, primary, primary};
    for (const MonitorFlag& flag : monitorFlags) {
        EXPECT_EQ(monitorAt(primary->geometry().center(), flag.value), primary) << flag.name;
        EXPECT_EQ(monitorAt(beside, flag.value), expected[flag.value]) << flag.name;
    }
}

TEST(SystemMetrics, AreThoseThatTheServiceAnswers)
{
    const std::vector<SystemMetric> all = systemMetrics();
    IPlatformResourceManager* service = g_PlatformServices.resourceManager();
    for (const SystemMetric& metric : all) {
        EXPECT_EQ(metric.value, service->GetSystemMetrics(metric.index)) << metric.name;
        EXPECT_EQ(metric.value != 0,
                  metric.index == SM_CXFULLSCREEN || metric.index == SM_CYFULLSCREEN)
            << metric.name;
    }
    EXPECT_EQ(valueText(all.front()), QString::number(all.front().value));
    EXPECT_EQ(valueText(all.back()), "0 (not provided)");
}

} // namespace

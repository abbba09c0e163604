#include "pages/profiles/ProfileLinesModel.h"
#include "pages/profiles/ProfileReadingsModel.h"

#include <gtest/gtest.h>

namespace {

TEST(ProfileModels, HaveNothingToShowWhereThereIsNoCell)
{
    const ProfileLinesModel lines;
    const ProfileReadingsModel readings;
    for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::ForegroundRole}) {
        EXPECT_FALSE(lines.data({}, role).isValid());
        EXPECT_FALSE(readings.data({}, role).isValid());
    }
}

TEST(ProfileModels, ShowMarkupInToolTipsAsItStands)
{
    RecordsModel<ProfileReading> readings(ProfileColumns::ofReadings());
    readings.append({{QStringLiteral("S"), QStringLiteral("<b>key</b>"), {}, QStringLiteral("1")}});
    const auto tip = [&readings](int column) {
        return readings.index(0, column).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(tip(ProfileColumns::KeyColumn), "<span>&lt;b&gt;key&lt;/b&gt;</span>");
    EXPECT_EQ(tip(ProfileColumns::SectionColumn), "S");
}

} // namespace

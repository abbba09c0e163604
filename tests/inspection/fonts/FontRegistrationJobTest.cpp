#include "inspection/fonts/FontRegistrationJob.h"
#include "tests/inspection/fonts/FreshServices.h"

#include <QFontDatabase>
#include <QSet>

#include <gtest/gtest.h>

namespace {

class FontRegistrationJobTest : public testing::Test
{
protected:
    static void run(FontRegistrationJob& job)
    {
        while (job.step()) {
        }
    }
    static QStringList fittingFamilies()
    {
        QStringList families;
        for (const QString& family : QFontDatabase().families()) {
            if (FontCatalogue::fits(family))
                families << family;
        }
        return families;
    }

    FreshServices m_services;
};

TEST_F(FontRegistrationJobTest, RegistersTheFamiliesOfTheSystem)
{
    FontRegistrationJob job;
    run(job);
    QSet<QString> registered;
    for (const RegisteredFont& font : FontCatalogue::records()) {
        EXPECT_EQ(FontCatalogue::globalName(font.face), font.face);
        EXPECT_EQ(font.fullName, font.face + ' ' + font.style);
        EXPECT_TRUE(font.weight >= 100 && font.weight <= 900 && font.weight % 100 == 0)
            << font.weight;
        registered.insert(font.face);
    }
    const QStringList expected = fittingFamilies();
    ASSERT_FALSE(expected.isEmpty());
    EXPECT_EQ(registered, QSet<QString>(expected.begin(), expected.end()));
    EXPECT_EQ(job.families(), expected.size());
    EXPECT_EQ(static_cast<std::size_t>(job.records()), FontCatalogue::records().size());
}

TEST_F(FontRegistrationJobTest, RegistersAFamilyAStep)
{
    const int families = QFontDatabase().families().size();
    ASSERT_GT(families, 1);
    FontRegistrationJob job;
    EXPECT_EQ(job.progress(), QStringLiteral("Families left: %1").arg(families));
    EXPECT_TRUE(job.step());
    EXPECT_EQ(job.progress(), QStringLiteral("Families left: %1").arg(families - 1));
    EXPECT_EQ(job.families() + job.tooLong().size(), 1);
}

TEST_F(FontRegistrationJobTest, LeavesAFamilyAloneThatTheServiceKnows)
{
    const QString known = fittingFamilies().first();
    RegisteredFont font;
    font.face = known;
    FontCatalogue::add("Global", font);
    FontRegistrationJob job;
    run(job);
    EXPECT_EQ(FontCatalogue::records(known).size(), 1U);
    EXPECT_EQ(job.families(), fittingFamilies().size() - 1);
}

TEST_F(FontRegistrationJobTest, TellsWhatItHasRegistered)
{
    FontRegistrationJob job;
    run(job);
    EXPECT_EQ(job.summary(), QStringLiteral("Registered records: %L1. Families: %L2.")
                                 .arg(job.records())
                                 .arg(job.families()));
    FontRegistrationJob again;
    run(again);
    EXPECT_EQ(again.summary(), "All families were registered before.");
}

TEST_F(FontRegistrationJobTest, TellsWhatItHasLeftOut)
{
    FontRegistrationJob job;
    run(job);
    QStringList tooLong;
    for (const QString& family : QFontDatabase().families()) {
        if (!FontCatalogue::fits(family))
            tooLong << family;
    }
    EXPECT_EQ(job.tooLong(), tooLong);
    EXPECT_EQ(job.omissions(), tooLong.isEmpty()
                                   ? QString()
                                   : "Left out, because their names do not fit a record: " +
                                         tooLong.join(", ") + '.');
}

struct NameLength
{
    int length;
    bool fits;
};

class FaceNameTest : public testing::TestWithParam<NameLength>
{
};

TEST_P(FaceNameTest, FitsWithItsTerminator)
{
    EXPECT_EQ(FontCatalogue::fits(QString(GetParam().length, QLatin1Char('x'))), GetParam().fits);
}

INSTANTIATE_TEST_SUITE_P(Lengths, FaceNameTest,
                         testing::Values(NameLength{0, true}, NameLength{31, true},
                                         NameLength{32, false}));

} // namespace

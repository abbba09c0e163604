#include "inspection/profiles/ProfileCheckJob.h"
#include "inspection/profiles/ProfileReader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using Comments = ProfileCheckJob::Comments;

class ProfileCheck : public testing::Test
{
protected:
    static std::vector<ProfileCheckJob::Finding> findings(const QByteArray& bytes,
                                                          Comments comments = Comments::Skip)
    {
        ProfileCheckJob job(bytes, comments);
        while (job.step()) {
        }
        return job.findings();
    }

    /// The numbers of the lines that the family is told of.
    static std::vector<int> lines(const QByteArray& bytes, ProfileFamily family,
                                  Comments comments = Comments::Skip)
    {
        std::vector<int> numbers;
        for (const auto& finding : findings(bytes, comments)) {
            if (finding.family == family)
                numbers.push_back(finding.line);
        }
        return numbers;
    }
};

using Lines = std::vector<int>;

TEST_F(ProfileCheck, TellsNothingOfAFileThatBothFamiliesReadAsItIsWritten)
{
    EXPECT_TRUE(findings("[s]\nk=v\n\nother=text\n").empty());
    EXPECT_TRUE(findings("").empty());
}

TEST_F(ProfileCheck, TellsLinesThatAFamilyDropsReplacesOrReadsOtherwise)
{
    const QByteArray file("k=none\n[s]\nno\ntwo=1=2\nk=old\nk=v\nlist=1, 2\ncut=1;2\nesc=a\\tb\n");
    EXPECT_EQ(lines(file, ProfileFamily::Narrow), Lines({1, 3, 4, 5}));
    EXPECT_EQ(lines(file, ProfileFamily::Wide), Lines({3, 5, 7, 8, 9}));
}

TEST_F(ProfileCheck, TellsCommentsWhereTheyAreWanted)
{
    EXPECT_TRUE(findings("; remark\n[s]\nk=v\n").empty());
    EXPECT_EQ(lines("; remark\n[s]\nk=v\n", ProfileFamily::Wide, Comments::Tell), Lines({1}));
}

TEST_F(ProfileCheck, TellsLinesThatAreNoText)
{
    EXPECT_EQ(lines("[s]\nk=\xD6\xD0\n", ProfileFamily::Narrow), Lines({2}));
}

// A line "name=number" of which nothing is told is what the family answers, and the other way
// round: names are never twice in a section, so that nothing hides a difference.
TEST_F(ProfileCheck, AgreesWithTheServicesOnGeneratedFiles)
{
    const QTemporaryDir folder;
    std::mt19937 random(7);
    const char* const heads[] = {"[s]", "[t]", "[s] ", "; x", "", "[broken", "text"};
    const char* const ends[] = {"", "=2", ";x", ", 2", "\\t", " "};
    for (int file = 0; file < 10000; ++file) {
        QByteArray bytes;
        QByteArrayList values;
        for (int line = 0; line < 6; ++line) {
            const QByteArray value = QByteArray::number(100 + line) + ends[random() % 6];
            const bool isHead = random() % 3 == 0;
            values << (isHead ? QByteArray() : value);
            bytes += isHead ? QByteArray(heads[random() % 7])
                            : QByteArray("k" + QByteArray::number(line) + '=' + value);
            bytes += '\n';
        }
        // A name of its own: the wide family takes a file of the same size and time for unchanged.
        QFile profile(folder.filePath(QString::number(file)));
        ASSERT_TRUE(profile.open(QIODevice::WriteOnly));
        profile.write(bytes);
        profile.close();
        const ProfileReader reader(profile.fileName());
        const Lines wide = lines(bytes, ProfileFamily::Wide);
        const Lines narrow = lines(bytes, ProfileFamily::Narrow);
        const auto isRead = [](const Lines& told, int line) {
            return std::find(told.begin(), told.end(), line + 1) == told.end();
        };
        for (int line = 0; line < 6; ++line) {
            if (values.at(line).isEmpty())
                continue;
            const QString key = QStringLiteral("k%1").arg(line);
            const QString value = QString::fromUtf8(values.at(line)).trimmed();
            bool isWide = reader.wide({}, key) == value;
            bool isNarrow = false;
            for (const QString& section :
                 {QStringLiteral("s"), QStringLiteral("t"), QStringLiteral("broken")}) {
                isWide = isWide || reader.wide(section, key) == value;
                isNarrow = isNarrow || reader.narrow(section, key) == value;
            }
            ASSERT_EQ(isWide, isRead(wide, line)) << bytes.toStdString() << "wide " << line;
            ASSERT_EQ(isNarrow, isRead(narrow, line)) << bytes.toStdString() << "narrow " << line;
        }
    }
}

} // namespace

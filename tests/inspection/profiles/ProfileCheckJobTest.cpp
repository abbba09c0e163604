#include "inspection/profiles/ProfileCheckJob.h"
#include "inspection/profiles/ProfileReader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>

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

TEST_F(ProfileCheck, TellsNamesThatAFamilyKnowsOtherwise)
{
    EXPECT_EQ(lines("[s]\n中=文\n%41=1\na\\b=1\n", ProfileFamily::Wide), Lines({2, 3, 4}));
    EXPECT_EQ(lines("[General]\nk=1\n[节]\nk=1\n", ProfileFamily::Wide), Lines({2, 4}));
    EXPECT_EQ(lines("[ s ]\nk=1\n", ProfileFamily::Narrow), Lines({2}));
    EXPECT_EQ(lines("[s]\n;k=1\n", ProfileFamily::Narrow), Lines({2}));
}

TEST_F(ProfileCheck, TellsValuesThatAFamilyReadsOtherwise)
{
    EXPECT_EQ(lines("[s]\na=\"v\"\nb=@Size(1 2)\nc=@Size(1)\nd=@@x\ne=@x\n", ProfileFamily::Wide),
              Lines({2, 3, 5}));
    EXPECT_EQ(lines("[s]\nk=\u3000v\n", ProfileFamily::Narrow), Lines({2}));
    EXPECT_EQ(lines("[s]\na=1\\\nb=2\nc=3\n", ProfileFamily::Wide), Lines({2, 3}));
    EXPECT_EQ(lines("[s]\na=1\rb=2\n", ProfileFamily::Wide), Lines({2}));
}

TEST_F(ProfileCheck, TellsNamesForWhichTheWideFamilyLooksInAnotherSection)
{
    EXPECT_EQ(lines("[A]\nB/c=1\nx=1\n[A/B]\nd=1\n", ProfileFamily::Wide), Lines({2, 3}));
    EXPECT_EQ(lines("a/b=1\nc=1\n", ProfileFamily::Wide), Lines({1}));
}

TEST_F(ProfileCheck, TellsTheWideFamilyOfEncodingsThatItDoesNotKnow)
{
    const QByteArray text = QTextCodec::codecForName("UTF-16LE")->fromUnicode("[s]\n;x\n\nk=v\n");
    EXPECT_EQ(lines(text, ProfileFamily::Wide), Lines({1, 4}));
    EXPECT_EQ(lines(text, ProfileFamily::Narrow), Lines());
}

/// Files with all that the families read differently, and what they say to who reads them.
class GeneratedProfile
{
public:
    struct Entry
    {
        int line = 0;
        QString section;
        QString key;
        QString value;
    };

    explicit GeneratedProfile(unsigned int seed) : m_random(seed)
    {
        if (one({"", "", "", "mark"}) != "")
            m_bytes = "\xef\xbb\xbf";
        const QByteArray end = one({"\n", "\n", "\r\n"});
        const int count = 3 + static_cast<int>(m_random() % 8);
        for (int line = 1; line <= count; ++line)
            m_bytes += this->line(line) + (line == count ? one({"", end}) : end);
    }

    const QByteArray& bytes() const { return m_bytes; }
    const std::vector<Entry>& entries() const { return m_entries; }
    /// Lines that say something, but nothing that a family could answer.
    const Lines& others() const { return m_others; }

private:
    QByteArray one(const QByteArrayList& texts)
    {
        return texts.at(static_cast<int>(m_random() % static_cast<unsigned int>(texts.size())));
    }

    QByteArray line(int number)
    {
        switch (m_random() % 6) {
        case 0: return header();
        case 1: return other(number);
        default: return entry(number);
        }
    }

    QByteArray header()
    {
        const QByteArray name = one({"s", "s", "t", "a", "General", "general", "节", "%41",
                                     "%general", "a b", "a/b", "a\\b", "", "x%", "\"q\"", "S"});
        m_section = QString::fromUtf8(name);
        return one({"[", "[", "[", "[", " [", "[ "}) + name +
               one({"]", "]", "]", "]", "] ", " ]", "];c", "]x", ""});
    }

    QByteArray other(int number)
    {
        const QByteArray text = one({"", " ", "; remark", "# remark", "text", "文", "\"", "\\"});
        if (text == "text" || text == "文")
            m_others.push_back(number);
        return text;
    }

    // The number makes keys and values single, so that nothing hides a difference.
    QByteArray entry(int line)
    {
        const QByteArray number = QByteArray::number(100 + line);
        const QByteArray key = one({"k", "k", "k", "中", "%41", "%", "%U4e2D", "a b", "a/b", "/",
                                    "a\\b", "\"q\"", "@", "\u3000", "K", "é"}) +
                               (m_random() % 8 == 0 ? QByteArray("same") : number);
        const QByteArray value =
            one({"", "", "", "\"", "@", "@@", "@Size(", "@Rect(", "@String(", "\\", "\xef\xbb\xbf",
                 "\u3000", "\v", "文", "'", "%41", "a=", ",", ";"}) +
            number +
            one({"", "", "", "\"", ")", " 2)", " 2 3 4)", ", 2", ";x", " ; x", "=2", "\\t", "\\",
                 "\\\\", "\u3000", "文", "\r1", "\u00a0", "\"x\""});
        m_entries.push_back(
            {line, m_section, QString::fromUtf8(key), QString::fromUtf8(' ' + value).mid(1)});
        return one({"", "", " ", "\t"}) + key + one({"=", "=", " = "}) + value + one({"", "", " "});
    }

    std::mt19937 m_random;
    QByteArray m_bytes;
    QString m_section;
    std::vector<Entry> m_entries;
    Lines m_others;
};

// An entry of which nothing is told is what the family answers for its names, and the other way
// round. Each question finds the file under a new name: the wide family keeps what it has parsed of
// a file, and takes one of the same size and time for unchanged.
class ProfileAgreement : public ProfileCheck
{
protected:
    void write(const QByteArray& bytes)
    {
        QFile file(newName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    bool isAnswered(const GeneratedProfile::Entry& entry, ProfileFamily family)
    {
        const QString former = m_name;
        EXPECT_TRUE(QFile::rename(former, newName()));
        const ProfileReader reader(m_name);
        return (family == ProfileFamily::Wide
                    ? reader.wide(entry.section, entry.key)
                    : reader.narrow(entry.section, entry.key)) == entry.value;
    }

private:
    QString newName() { return m_name = m_folder.filePath(QString::number(++m_number)); }

    QTemporaryDir m_folder;
    QString m_name;
    int m_number = 0;
};

TEST_F(ProfileAgreement, IsThatOfTheServicesOnGeneratedFiles)
{
    for (unsigned int number = 0; number < 10000; ++number) {
        const GeneratedProfile generated(number);
        write(generated.bytes());
        for (const ProfileFamily family : {ProfileFamily::Wide, ProfileFamily::Narrow}) {
            const Lines told = lines(generated.bytes(), family);
            const auto isTold = [&](int line) {
                return std::find(told.begin(), told.end(), line) != told.end();
            };
            for (const GeneratedProfile::Entry& entry : generated.entries()) {
                ASSERT_NE(isAnswered(entry, family), isTold(entry.line))
                    << generated.bytes().toStdString() << "\nfile " << number << ", line "
                    << entry.line << (family == ProfileFamily::Wide ? ", wide" : ", narrow");
            }
            for (const int line : generated.others())
                ASSERT_TRUE(isTold(line)) << generated.bytes().toStdString() << "\nline " << line;
        }
    }
}

} // namespace

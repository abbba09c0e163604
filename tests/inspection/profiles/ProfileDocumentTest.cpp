#include "inspection/profiles/ProfileFindJob.h"
#include "inspection/profiles/ProfileLoadingJob.h"
#include "tests/inspection/profiles/ProfileFixture.h"

#include <QTextCodec>

#include <memory>
#include <vector>

namespace {

class ProfileDocumentTest : public testing::Test
{
protected:
    const ProfileDocument& load(const QByteArray& bytes)
    {
        m_file.write(bytes);
        ProfileLoadingJob loading(m_file.path());
        m_steps = 0;
        while (loading.step())
            ++m_steps;
        m_document = std::make_shared<const ProfileDocument>(std::move(loading.document()));
        return *m_document;
    }
    QStringList names() const
    {
        QStringList all;
        for (int name = 0; name < m_document->names().count(); ++name)
            all << m_document->name(name).first + '.' + m_document->name(name).second;
        return all;
    }
    int find(const QString& text, int first, const QTextCodec* codec = nullptr) const
    {
        ProfileFindJob job(m_document, text, first, codec);
        while (job.step())
            ;
        return job.found();
    }

    ProfileFixture m_file;
    std::shared_ptr<const ProfileDocument> m_document;
    int m_steps = 0;
};

TEST_F(ProfileDocumentTest, HasTheLinesOfTheFile)
{
    const ProfileDocument& document = load("[S]\r\na = 1\n\nlast");
    ASSERT_EQ(document.lines().count(), 4);
    const ProfileDocument::Line line = document.line(1);
    EXPECT_EQ(line.number, 2);
    EXPECT_EQ(line.text, QStringLiteral("a = 1"));
    EXPECT_EQ(line.narrow.state, LineState::Entry);
    EXPECT_EQ(line.wide.state, LineState::Entry);
    for (const LineReading& reading : {document.lines().narrow(1), document.lines().wide(1)}) {
        EXPECT_EQ(reading.section, QStringLiteral("S"));
        EXPECT_EQ(reading.key, QStringLiteral("a"));
    }
    EXPECT_EQ(document.lines().text(0), QStringLiteral("[S]"));
    EXPECT_EQ(document.lines().text(3), QStringLiteral("last"));
}

TEST_F(ProfileDocumentTest, KeepsAMarkWithinTheFileAsTheServiceDoes)
{
    const ProfileDocument& document = load("\xef\xbb\xbf[S]\n\xef\xbb\xbfk=1\n");
    EXPECT_EQ(document.lines().text(0), QStringLiteral("[S]"));
    EXPECT_EQ(document.lines().text(1), QStringLiteral("\ufeffk=1"));
    EXPECT_EQ(document.lines().narrow(1).key, QStringLiteral("\ufeffk"));
}

TEST_F(ProfileDocumentTest, NamesEachEntryOnceWhicheverLineGivesIt)
{
    load("[A]\nk=1\n[B]\nx=1\n[A]\nk=2=2\nj=1\n");
    EXPECT_EQ(names(), QStringList({"B.x", "A.k", "A.j"}));
    load("[A]\nk=1\n[B]\nx=1\n[B]\ny=2\n[A]\nk=2=2\n");
    EXPECT_EQ(names(), QStringList({"B.x", "B.y", "A.k"}));
    load("[A]\nk=1\nk=2=2\n");
    EXPECT_EQ(names(), QStringList({"A.k"}));
    EXPECT_EQ(m_document->names().ofLine(0), -1);
    EXPECT_EQ(m_document->names().ofLine(1), 0);
    EXPECT_EQ(m_document->names().ofLine(2), 0);
    EXPECT_EQ(m_document->names().place(0).line, 1);
}

TEST_F(ProfileDocumentTest, IsReadInManyStepsWhereItIsLarge)
{
    constexpr int keys = 100000;
    QByteArray bytes = "[S]\n";
    for (int i = 0; i < keys; ++i)
        bytes += "key" + QByteArray::number(i) + "=value\n";
    const ProfileDocument& document = load(bytes);
    EXPECT_EQ(document.names().count(), keys);
    EXPECT_EQ(document.name(keys - 1).second, QStringLiteral("key99999"));
    EXPECT_GT(m_steps, 200);
}

// What begins with a quote goes on to the end of the file.
TEST_F(ProfileDocumentTest, ReadsAWideLineInPieces)
{
    const QByteArray quoted = "a=\"" + QByteArray(100000, 'x') + "\n" + QByteArray(100000, '\n');
    const ProfileDocument& document = load("[S]\n" + quoted + "b=1\"\nc=1\n");
    EXPECT_EQ(names().first(), QStringLiteral("S.a"));
    const int last = document.lines().count() - 1;
    EXPECT_EQ(document.lines().wideMark(1).state, LineState::Entry);
    EXPECT_EQ(document.lines().wideMark(last - 1).state, LineState::Continuation);
    EXPECT_EQ(document.lines().wideMark(last).state, LineState::Entry);
    EXPECT_EQ(document.lines().wide(last).key, QStringLiteral("c"));
}

TEST_F(ProfileDocumentTest, FindsATextFromALineOnAndAround)
{
    load("[S]\nabc=1\nx=2\nABC=3\n");
    EXPECT_EQ(find(QStringLiteral("abc"), 0), 1);
    EXPECT_EQ(find(QStringLiteral("abc"), 2), 3);
    EXPECT_EQ(find(QStringLiteral("abc"), 4), 1);
    EXPECT_EQ(find(QStringLiteral("x=2"), 3), 2);
    EXPECT_EQ(find(QStringLiteral("none"), 0), -1);
}

TEST_F(ProfileDocumentTest, DecodesOnlyLinesThatAreNotUtf8)
{
    const QTextCodec* codec = QTextCodec::codecForName("windows-1252");
    const ProfileDocument& document = load("\xc3\xa4\n\xe4\n");
    EXPECT_EQ(document.line(0, codec).text, QString(QChar(0xe4)));
    EXPECT_EQ(document.line(1, codec).text, QString(QChar(0xe4)));
    EXPECT_TRUE(document.line(0).isUtf8);
    EXPECT_FALSE(document.line(1).isUtf8);
    EXPECT_EQ(document.line(1).text, QString(QChar::ReplacementCharacter));
}

} // namespace

#include "inspection/crypto/DigestJob.h"

#include "crypto/Encrypt.h"
#include "crypto/MD5.h"
#include "crypto/Sha256.h"
#include "inspection/crypto/DigestNotes.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void finish(DigestJob& job)
{
    while (job.step()) {
    }
}

Digests digestsOf(const std::string& text, const QByteArray& second = {})
{
    DigestJob job(QByteArray::fromStdString(text), second);
    finish(job);
    return job.digests();
}

std::string notesOf(const std::string& text)
{
    return DigestNotes::of(digestsOf(text)).toStdString();
}

void expectDigestsOf(const Digests& digests, const std::string& text, const std::string& second)
{
    EXPECT_EQ(digests.sha256Hex.toStdString(), Sha256().getHexMessageDigest(text));
    EXPECT_EQ(digests.fingerprint.toStdString(), Encrypt::Sha256Encode(text));
    EXPECT_EQ(digests.md5.toStdString(), MD5().Encode(text));
    EXPECT_EQ(digests.kd.toStdString(), Encrypt::KdEncode(text, second));
    EXPECT_EQ(digests.length, static_cast<qint64>(text.size()));
}

TEST(DigestJob, GivesWhatTheClassesGiveForATextOfSeveralPieces)
{
    for (const std::size_t size : {0U, 3U, 128U * 1024, 300000U})
        expectDigestsOf(digestsOf(std::string(size, '\xe4'), "second"), std::string(size, '\xe4'),
                        "second");
}

TEST(DigestJob, EndsTheFingerprintsAtTheFirstZeroByte)
{
    std::string text(300000, 'a');
    EXPECT_EQ(digestsOf(text).zeroByte, -1);
    text[200000] = '\0';
    text[250000] = '\0';
    const Digests digests = digestsOf(text, "second");
    EXPECT_EQ(digests.zeroByte, 200000);
    expectDigestsOf(digests, text, "second");
}

TEST(DigestJob, DigestsAFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const std::string content(300000, 'a');
    file.write(content.data(), static_cast<qint64>(content.size()));
    file.close();
    QString problem;
    const auto job = DigestJob::ofFile(file.fileName(), "second", &problem);
    ASSERT_TRUE(job);
    EXPECT_EQ(problem, QString());
    finish(*job);
    EXPECT_EQ(job->error(), QString());
    expectDigestsOf(job->digests(), content, "second");
}

TEST(DigestJob, SaysWhyAFileCannotBeDigested)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath("missing");
    const std::pair<QString, QString> rows[] = {
        {"", "Enter the path of a file first."},
        {missing, "There is no file " + missing + "."},
        {folder.path(), folder.path() + " is not a regular file."},
    };
    for (const auto& [path, expected] : rows) {
        QString problem;
        EXPECT_FALSE(DigestJob::ofFile(path, {}, &problem));
        EXPECT_EQ(problem, expected);
    }
}

// The memory of a process begins with addresses that cannot be read.
TEST(DigestJob, EndsWithAnErrorWhereTheFileCannotBeRead)
{
    QString problem;
    const auto job = DigestJob::ofFile("/proc/self/mem", {}, &problem);
    ASSERT_TRUE(job) << problem.toStdString();
    EXPECT_FALSE(job->step());
    EXPECT_NE(job->error(), QString());
    EXPECT_FALSE(job->step());
}

TEST(DigestJob, TellsHowFarItHasCome)
{
    DigestJob job(QByteArray(60, 'a'), {});
    EXPECT_EQ(job.progress(), "0 bytes of 60 bytes");
    job.step();
    EXPECT_EQ(job.progress(), "60 bytes of 60 bytes");
    job.step();
    EXPECT_EQ(job.progress(), "MD5 padding: 8,388,608 blocks left");
    job.step();
    EXPECT_EQ(job.progress(), "MD5 padding: 8,386,560 blocks left");
}

TEST(DigestNotes, SayWhereDigestsAreNotAsExpected)
{
    EXPECT_EQ(notesOf("abc"), "");
    EXPECT_EQ(notesOf("abc\xe4"), "");
    EXPECT_EQ(notesOf("\xe4"
                      "bc"),
              "The library's MD5 departs from RFC 1321 here, which gives "
              "5764663a156a5090848771bf4314af5f, because of the text: it holds bytes of 0x80 or "
              "above.");
    EXPECT_EQ(notesOf(""), "SHA-256 and the fingerprint of an empty text are empty.");
    EXPECT_EQ(notesOf(std::string("ab\0c", 4)),
              "Sha256Encode and KdEncode read only the 2 bytes before the first zero byte.");
    EXPECT_EQ(notesOf(std::string("a\0c", 3)),
              "Sha256Encode and KdEncode read only the one byte before the first zero byte.");
}

TEST(DigestNotes, NameEveryDepartureOfTheMd5)
{
    Digests digests;
    digests.md5 = "other";
    digests.length = 1;
    digests.signExtended = digests.longPadding = digests.cutLength = true;
    EXPECT_TRUE(DigestNotes::of(digests).endsWith(
        "it holds bytes of 0x80 or above, its length modulo 64 is 57 to 63, it is 512 MiB long or "
        "longer."))
        << DigestNotes::of(digests).toStdString();
}

} // namespace

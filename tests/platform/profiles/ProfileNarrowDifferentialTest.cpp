#include "tests/platform/profiles/PlainNarrowProfile.h"
#include "tests/platform/profiles/ProfileManagerTest.h"

#include <cstring>
#include <random>
#include <vector>

namespace {

// Names that can be asked for: no NUL, and unchanged by UTF-8.
bool isAskable(const QString& name)
{
    return !name.contains(QChar(0)) && QString::fromUtf8(name.toUtf8()) == name;
}

const std::vector<QByteArray> pieces = {
    "[S]", "[T]", "[S] ", "[", "]", "S", "k", "j", "value", "=", "=", "=", " ", "\t", ";", "#",
    "\n", "\n", "\n", "\n", "\n", "\r", "\r\n", "\n[S]\n", "\nk=v\n", "\nk=", QByteArray("\0", 1),
    "\v", "\f", "\x1C", "\x7F", "\xC2\x85", "\xC2\xA0", "\xE2\x80\xA8", "\xE3\x80\x80",
    "\xE4\xB8\xAD", "\xEF\xBB\xBF", "\xF0\x9F\x98\x80",
    // Invalid: lone, cut, overlong, a surrogate, out of range.
    "\xFF", "\xC3", "\xE4\xB8", "\xF0\x9F\x98", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"};
const std::vector<QByteArray> marks = {"",
                                       "",
                                       "",
                                       "",
                                       "\xEF\xBB\xBF",
                                       "\xEF\xBB",
                                       "\xFF\xFE",
                                       "\xFE\xFF",
                                       QByteArray("\xFF\xFE\0\0", 4),
                                       QByteArray("\0\0\xFE\xFF", 4)};

class ProfileNarrowDifferential : public ProfileManagerTest
{
protected:
    template <typename Range>
    const auto& any(const Range& range)
    {
        return range[random() % range.size()];
    }

    QByteArray soup(std::size_t count)
    {
        QByteArray content = any(marks);
        for (std::size_t i = random() % (count + 1); i > 0; --i)
            content += any(pieces);
        return content;
    }

    // Expects each value, and the file after a write, to be what plain reading and writing give.
    void expectTheSame(const QByteArray& content)
    {
        SCOPED_TRACE(content.left(2000).toPercentEncoding().toStdString());
        write(content);
        PlainNarrowProfile plain(path);
        const auto& sections = plain.sections();
        for (auto section = sections.begin(); section != sections.end(); ++section) {
            const QString name = section.key().mid(1, section.key().size() - 2);
            if (!isAskable(section.key()) || !section.key().endsWith(']'))
                continue;
            for (auto entry = section->begin(); entry != section->end(); ++entry)
                expectValue(name, entry.key(), entry.value());
        }
        EXPECT_EQ("", readNarrow("no such section", "k"));
        EXPECT_EQ(1, writeNarrow("S", "k", "\xE4\xB8\xAD"));
        plain.set("[S]", "k", QString::fromUtf8("中"));
        EXPECT_EQ(plain.writtenTo(folder.filePath("plain.ini")), this->content());
    }

    void expectValue(const QString& section, const QString& key, const QString& value)
    {
        if (!isAskable(key))
            return;
        std::vector<char> buffer(static_cast<std::size_t>(value.size()) * 4 + 1);
        manager.GetPrivateProfileStringA(section.toUtf8(), key.toUtf8(), nullptr, buffer.data(),
                                         static_cast<unsigned int>(buffer.size()), narrow);
        EXPECT_STREQ(value.toUtf8().constData(), buffer.data());
    }

    std::mt19937 random{20240229};
};

TEST_F(ProfileNarrowDifferential, OfSmallFiles)
{
    for (int i = 0; i < 2000 && !HasFailure(); ++i)
        expectTheSame(soup(60));
}

// A text stream reads and decodes 16 KiB at a time; here something odd lies on each border.
TEST_F(ProfileNarrowDifferential, OfFilesOfSeveralChunks)
{
    for (int i = 0; i < 200 && !HasFailure(); ++i) {
        QByteArray content = "[S]\nk=v\n";
        for (int border = 16384; border <= 3 * 16384; border += 16384) {
            content += soup(20) + "\nfiller=";
            const int room = border - content.size() - static_cast<int>(random() % 12);
            content += QByteArray(qMax(room, 0), 'x');
        }
        expectTheSame(content + soup(40));
    }
}

// The stream takes a byte order mark away from the beginning of each chunk that only ASCII
// precedes.
TEST_F(ProfileNarrowDifferential, OfAByteOrderMarkAtABorder)
{
    for (int border = 16380; border <= 16388; ++border) {
        for (const char* first : {"[S]\nfiller=", "[S]\nfiller=\xC3\xA9"}) {
            const QByteArray filler(border - static_cast<int>(std::strlen(first)) - 1, 'x');
            expectTheSame(first + filler + "\n\xEF\xBB\xBFk=v\nj=w\n");
        }
    }
}

TEST_F(ProfileNarrowDifferential, OfManyEntries)
{
    QByteArray content;
    for (int i = 0; i < 3000; ++i) {
        if (i % 500 == 0)
            content += "[Section " + QByteArray::number(i * 7 % 5) + "]\n";
        content +=
            "key" + QByteArray::number(i * 7919 % 1000) + " = " + QByteArray::number(i) + "\n";
    }
    expectTheSame(content);
}

} // namespace

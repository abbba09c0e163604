#include "inspection/registry/StoredText.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct Row
{
    QVariant entry;
    const char* words; ///< a part of the explanation; empty: none
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.entry.toString().toStdString();
}

class UnreadableText : public testing::TestWithParam<Row>
{
};

TEST_P(UnreadableText, SaysWhy)
{
    const QString why = StoredText(GetParam().entry).whyUnreadable();
    EXPECT_TRUE(why.contains(QLatin1String(GetParam().words))) << why.toStdString();
}

INSTANTIATE_TEST_SUITE_P(StoredText, UnreadableText,
                         testing::Values(Row{{}, "mark of a key"}, Row{"no tag", "No type tag"},
                                         Row{"$5", "No type tag"}, Row{"", "No type tag"},
                                         Row{"3$1", "Tag 3"}, Row{"6$1", "Tag 6"},
                                         Row{"-1$1", "Tag -1"}, Row{"5$x", "Not found"},
                                         Row{QStringList({"5$a", "b"}), "comma"}));

class ReadableText : public testing::TestWithParam<Row>
{
};

TEST_P(ReadableText, SaysWhatIsAmiss)
{
    const QString warning = StoredText(GetParam().entry).warning();
    const QString words = QLatin1String(GetParam().words);
    EXPECT_EQ(warning.isEmpty(), words.isEmpty()) << warning.toStdString();
    EXPECT_TRUE(warning.contains(words)) << warning.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    StoredText, ReadableText,
    testing::Values(Row{"1$0", ""}, Row{"0$-1", ""}, Row{"1$2147483647", ""},
                    Row{"1$2147483648", "Bad number"}, Row{"1$", "Bad number"},
                    Row{"1$12x", "Bad number"}, Row{"2$9223372036854775807", ""},
                    Row{"2$9223372036854775808", "Bad number"}, Row{"4$00ff", ""}, Row{"4$", ""},
                    Row{"4$0ff", "odd number"}, Row{"4$0g", "not hexadecimal"},
                    Row{"5$anything", ""}, Row{"x$1", "no number"}, Row{"none", ""}));

} // namespace

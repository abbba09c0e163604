#include "platform/files/FileNameDecoder.h"

#include <QTextCodec>

#include <gtest/gtest.h>

namespace {

using Result = FileNameDecoder::Result;

struct Row
{
    const char* codec;
    const char* name;
    Result result;
    const char* text; // in UTF-8; of use only where the name is text
};

class FileNameDecoderTest : public testing::TestWithParam<Row>
{
protected:
    FileNameDecoderTest() { QTextCodec::setCodecForLocale(codec(GetParam().codec)); }
    ~FileNameDecoderTest() override { QTextCodec::setCodecForLocale(m_before); }

private:
    static QTextCodec* codec(const char* name) { return QTextCodec::codecForName(name); }

    QTextCodec* m_before = QTextCodec::codecForLocale();
};

TEST_P(FileNameDecoderTest, ReadsTheNameOrSaysWhyNot)
{
    QString text;
    ASSERT_EQ(FileNameDecoder().decode(GetParam().name, text), GetParam().result);
    if (GetParam().result == Result::Text) {
        EXPECT_EQ(text.toStdString(), GetParam().text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileNameDecoderTest,
    testing::Values(Row{"UTF-8", "", Result::Text, ""},
                    Row{"UTF-8", "read me.txt\n\x7F", Result::Text, "read me.txt\n\x7F"},
                    Row{"UTF-8", "\xE6\xB1\x89", Result::Text, "\xE6\xB1\x89"},
                    Row{"UTF-8", "\xEF\xBB\xBFx", Result::Text, "\xEF\xBB\xBFx"},
                    Row{"UTF-8", "bad\xFF", Result::InvalidBytes, ""},
                    Row{"UTF-8", "\xC0\xAF", Result::InvalidBytes, ""},
                    Row{"UTF-8", "cut\xE6\xB1", Result::CutShort, ""},
                    Row{"ISO-8859-1", "\xE4", Result::Text, "\xC3\xA4"},
                    Row{"Shift_JIS", "\x8A\xBF", Result::Text, "\xE6\xBC\xA2"}));

TEST(FileNameDecoder, KnowsWhetherTheLocaleSaysUtf8)
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    for (const char* name : {"UTF-8", "GB18030"}) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
        EXPECT_EQ(FileNameDecoder().isUtf8(), QByteArray(name) == "UTF-8");
    }
    QTextCodec::setCodecForLocale(before);
}

} // namespace

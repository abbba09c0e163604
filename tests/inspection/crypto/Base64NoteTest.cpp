#include "inspection/crypto/Base64Note.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

TEST(Base64Note, TellsHowMuchOfATextCounts)
{
    const std::string lone = "The last Base64 character stands alone and yields nothing.";
    const std::pair<const char*, std::string> rows[] = {
        {"QUJD", ""},
        {"QUJD QUJD",
         "Only the first 4 characters are URL-safe Base64; the library ignores what follows."},
        {"Q QUJD", lone + " Only the first character is URL-safe Base64; the library ignores what "
                          "follows."},
    };
    for (const auto& [text, note] : rows)
        EXPECT_EQ(Base64Note::of(text).toStdString(), note) << text;
}

} // namespace

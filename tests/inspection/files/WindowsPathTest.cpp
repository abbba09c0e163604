#include "inspection/files/WindowsPath.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

TEST(WindowsPath, IsKnownByItsBackslashesOrItsDrive)
{
    for (const char* path : {"C:\\Users\\x", "c:/Users", "a\\b", "\\\\server\\share"})
        EXPECT_TRUE(WindowsPath::isIn(path)) << path;
    for (const char* path : {"/etc/hosts", "C:", "x:y", "https://a/b", "a:b/c", "ab:/c", ""})
        EXPECT_FALSE(WindowsPath::isIn(path)) << path;
}

TEST(WindowsPath, MeansAPathWithSlashes)
{
    const std::pair<const char*, const char*> rows[] = {
        {"C:\\Users\\x\\*.ini", "/Users/x/*.ini"},
        {"c:/Users", "/Users"},
        {"..\\a\\b", "../a/b"},
        {"\\\\server\\share\\a", "/server/share/a"},
    };
    for (const auto& [path, meant] : rows)
        EXPECT_EQ(WindowsPath::asMeantHere(path).toStdString(), meant);
}

} // namespace

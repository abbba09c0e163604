#include "inspection/files/TypedPath.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

TEST(TypedPath, IsWhatWasMeant)
{
    const std::string home = QDir::homePath().toStdString();
    const struct
    {
        const char* typed;
        std::string path;
    } rows[] = {
        {"/etc/hosts", "/etc/hosts"},
        {"~", home},
        {"~/a b.ini", home + "/a b.ini"},
        {" ~/a.ini\n", home + "/a.ini"},
        {"~other/a.ini", "~other/a.ini"},
        {"/a/~/b", "/a/~/b"},
        {"\"/a b/c.ini\"", "/a b/c.ini"},
        {" '/a b/c.ini' ", "/a b/c.ini"},
        {"'/a b/c.ini\"", "'/a b/c.ini\""},
        {"\"~/a b.ini\"", home + "/a b.ini"},
        {"'~'", home},
        {"\"file:///a%20b\"", "/a b"},
        {"\" /with a space\"", " /with a space"},
        {"file:/a%20b.ini", "/a b.ini"},
        {"file:a.ini", "file:a.ini"},
        {"\"", "\""},
        {"file:///a%20b/%E7%A0%81.ini", "/a b/\u7801.ini"},
        {"FILE:///a.ini\n", "/a.ini"},
        {"file://localhost/a.ini", "/a.ini"},
        {"file:///etc/?osts#1", "/etc/?osts#1"},
        {"file://server/a.ini", "file://server/a.ini"},
        {"https://example.org/a", "https://example.org/a"},
        {"C:\\Users\\x", "C:\\Users\\x"},
        {" /with spaces ", " /with spaces "},
        {"", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(typedPath(row.typed).toStdString(), row.path) << row.typed;
}

} // namespace

#include "inspection/registry/RegistryTextJob.h"
#include "tests/inspection/registry/RegistryTest.h"

namespace {

class RegistryTextTest : public RegistryTest
{
protected:
    RegistryTextTest()
    {
        store("A/v", "1$42");
        store("A/bad", "none");
        store("A/B/w", "5$text");
        store("X/X", "1$1");
    }
};

const char header[] = "Windows Registry Editor Version 5.00\r\n";

TEST_F(RegistryTextTest, OfAKeyHasEverythingBelowIt)
{
    RegistryTextJob job("A");
    while (job.step()) {
    }
    const QString text = job.text();
    EXPECT_TRUE(text.startsWith(header)) << text.toStdString();
    EXPECT_TRUE(text.contains("[HKEY_CURRENT_USER\\A]\r\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"v\"=dword:0000002a\r\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("[HKEY_CURRENT_USER\\A\\B]\r\n\"w\"=\"text\"\r\n"))
        << text.toStdString();
    EXPECT_FALSE(text.contains("\"X\"")) << text.toStdString();
    EXPECT_EQ(job.values(), 2);
    EXPECT_EQ(job.leftOut(), 1);
    EXPECT_EQ(job.progress().toStdString(), "2");
}

TEST_F(RegistryTextTest, OfValuesNamesEachKeyOnce)
{
    store("A/u", "5$first");
    RegistryTextJob job({{"A", "u"}, {"A", "v"}, {"X", "X"}});
    while (job.step()) {
    }
    EXPECT_EQ(job.text().toStdString(),
              std::string(header) +
                  "\r\n[HKEY_CURRENT_USER\\A]\r\n\"u\"=\"first\"\r\n\"v\"=dword:0000002a\r\n"
                  "\r\n[HKEY_CURRENT_USER\\X]\r\n\"X\"=dword:00000001\r\n");
}

} // namespace

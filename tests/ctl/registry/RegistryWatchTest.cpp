#include "tests/ctl/CtlTest.h"

namespace {

class CtlRegistryWatch : public CtlTest
{
};

// The shell waits for the line that it expects, and for nothing else.
TEST_F(CtlRegistryWatch, PrintsChangesAsTheyAreSavedUntilItIsInterrupted)
{
    writeStore("[A]\nv=5$old\n");
    const Result result = shell("$CTL --json registry watch A >out & watcher=$!;"
                                "until grep -q records out; do sleep 0.05; done;"
                                "$CTL registry set B w other; $CTL registry set A v new;"
                                "until grep -q new out; do sleep 0.05; done;"
                                "kill -INT $watcher; wait $watcher");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(read("out"),
              "{\"command\":\"registry watch\",\"records\":[\n"
              "{\"after\":\"REG_SZ new\",\"before\":\"REG_SZ old\",\"change\":\"changed\","
              "\"key\":\"HKEY_CURRENT_USER\\\\A\",\"name\":\"v\"}],\"status\":0}\n");
}

// Whenever the signal comes, the file is the one before or the one behind the change.
TEST_F(CtlRegistryWatch, LeavesTheStoreWholeWhenAWriterIsInterrupted)
{
    QByteArray store("[A]\n");
    for (int i = 0; i < 20000; ++i)
        store += "value" + QByteArray::number(i) + "=5$text\n";
    for (const char* delay : {"0.02", "0.05", "0.1", "0.15", "0.2"}) {
        writeStore(store);
        shell(QStringLiteral("$CTL registry copy A B >/dev/null & sleep %1; kill -INT $!; wait $!")
                  .arg(QLatin1String(delay)));
        const int size = storeBytes().size();
        EXPECT_TRUE(size == store.size() || size == 2 * store.size() + 1) << delay << ' ' << size;
        EXPECT_EQ(shell("ls data/quayside").out, "registry.ini\n");
    }
}

} // namespace

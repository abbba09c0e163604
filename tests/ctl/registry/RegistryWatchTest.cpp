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
    write("b.reg", "REGEDIT4\n[HKEY_CURRENT_USER\\B]\n\"value\"=\"text\"\n");
    const auto sizeBehind = [&](const QString& command) {
        writeStore(store);
        EXPECT_EQ(shell("$CTL --quiet registry " + command).status, 0);
        return storeBytes().size();
    };
    const int copied = sizeBehind("copy A B");
    const int imported = sizeBehind("import b.reg");
    for (const char* delay : {"0.02", "0.05", "0.1", "0.15", "0.2"}) {
        for (const QString& command : QStringList{"copy A B", "import b.reg"}) {
            writeStore(store);
            shell(QStringLiteral("$CTL registry %1 >/dev/null & sleep %2; kill -INT $!; wait $!")
                      .arg(command, QLatin1String(delay)));
            const int size = storeBytes().size();
            const int whole = command.startsWith("copy") ? copied : imported;
            EXPECT_TRUE(size == store.size() || size == whole)
                << command.toStdString() << ' ' << delay << ' ' << size;
            EXPECT_EQ(shell("ls data/quayside").out, "registry.ini\n");
        }
    }
}

} // namespace

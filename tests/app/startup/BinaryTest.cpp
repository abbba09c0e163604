// What the linker made of the executable: its exports and the order of static construction.

#include "tests/app/startup/Application.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QStringList linesOf(const QString& program, const QStringList& arguments)
{
    ChildProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(0, process.exitCode());
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

// Defined symbols: name by address.
QMultiMap<quint64, QString> symbols()
{
    QMultiMap<quint64, QString> found;
    for (const QString& line : linesOf("nm", {"--defined-only", Application::executable()})) {
        const QStringList fields = line.split(' ');
        found.insert(fields.value(0).toULongLong(nullptr, 16), fields.value(2));
    }
    return found;
}

struct Section
{
    quint64 address = 0;
    quint64 size = 0;
};

Section initArray()
{
    const QRegularExpression row(
        R"(\.init_array\s+INIT_ARRAY\s+([0-9a-f]+)\s+[0-9a-f]+\s+([0-9a-f]+))");
    const auto match = row.match(linesOf("readelf", {"-SW", Application::executable()}).join('\n'));
    return {match.captured(1).toULongLong(nullptr, 16), match.captured(2).toULongLong(nullptr, 16)};
}

// The functions of static construction, each named after its source, in the order in which they
// run. In a position-independent executable their addresses are relative relocations of the array's
// words.
QStringList constructors()
{
    const QMultiMap<quint64, QString> names = symbols();
    const Section array = initArray();
    QMap<quint64, QString> ordered;
    const QRegularExpression row(R"(^([0-9a-f]+)\s+\S+\s+R_\w+_RELATIVE\s+([0-9a-f]+))");
    for (const QString& line : linesOf("readelf", {"-rW", Application::executable()})) {
        const auto match = row.match(line);
        const quint64 word = match.captured(1).toULongLong(nullptr, 16);
        if (match.hasMatch() && word >= array.address && word < array.address + array.size)
            ordered[word] = names.value(match.captured(2).toULongLong(nullptr, 16));
    }
    // What the compiler's run-time and the sanitizers add is not ours.
    return QStringList(ordered.values()).filter("_GLOBAL__sub_I");
}

// Each source that uses the standard streams has an initialiser of them in its constructor.
bool initialisesStreams(const QString& constructor)
{
    return linesOf(QStringLiteral(QUAYSIDE_OBJDUMP),
                   {"-d", "--disassemble=" + constructor, Application::executable()})
        .join('\n')
        .contains("ios_base4InitC1");
}

// What readelf says of the executable; runs of blanks are one.
QString elf(const QString& option)
{
    return linesOf("readelf", {option, Application::executable()}).join('\n').simplified();
}

int indexOf(const QStringList& constructors, const QString& part)
{
    const int index = constructors.indexOf(QRegularExpression(".*" + part + ".*"));
    EXPECT_GE(index, 0) << part.toStdString();
    return index;
}

TEST(Exports, AreTheServicesObjectAndTheDecryptionEntry)
{
    QStringList names;
    for (const QString& line : linesOf("nm", {"-D", "--defined-only", Application::executable()}))
        names << line.section(' ', 2);
    names.sort();
    EXPECT_EQ(QStringList({"DecryptionAES_Export", "g_PlatformServices"}), names);
}

TEST(Binary, HoldsTheGlobalObjectsOfTheKitAndTheCodec)
{
    const QString names = symbols().values().join('\n');
    EXPECT_TRUE(names.contains("g_buttonMonitor"));
    EXPECT_TRUE(names.contains("base64_chars"));
}

TEST(Hardening, ExecutableIsPositionIndependent)
{
    EXPECT_TRUE(elf("-hW").contains("Type: DYN"));
    EXPECT_TRUE(elf("-dW").contains(QRegularExpression(R"(\(FLAGS_1\) Flags: [A-Z ]*\bPIE\b)")));
}

// Tables of addresses are filled at start and are read-only from then on.
TEST(Hardening, RelocationsAreReadOnly)
{
    if (!QUAYSIDE_HARDENED)
        GTEST_SKIP() << "sanitized and debug builds are not hardened";
    EXPECT_TRUE(elf("-lW").contains("GNU_RELRO"));
    EXPECT_TRUE(elf("-dW").contains(QRegularExpression(R"(\(FLAGS_1\) Flags: [A-Z ]*\bNOW\b)")));
}

TEST(Hardening, StacksAreGuarded)
{
    if (!QUAYSIDE_HARDENED)
        GTEST_SKIP() << "sanitized and debug builds are not hardened";
    const QStringList imports =
        linesOf("nm", {"-D", "--undefined-only", Application::executable()});
    EXPECT_FALSE(imports.filter("__stack_chk_fail").isEmpty());
}

TEST(StaticConstruction, FollowsTheOrderOfStartUp)
{
    const QStringList order = constructors();
    const int services = indexOf(order, "PlatformServicesImp.cpp");
    const int monitor = indexOf(order, "ButtonMonitor.cpp");
    const int alphabet = indexOf(order, "Base64Encoder.cpp");
    const int resources = indexOf(order, "qrc_quayside.cpp");
    EXPECT_LT(services, monitor);
    EXPECT_LT(monitor, alphabet);
    EXPECT_LT(alphabet, resources);
    EXPECT_EQ(order.size() - 1, resources);
}

// Whatever else runs before main would find no place of its own in that order.
TEST(StaticConstruction, NothingElseIsConstructedButStreams)
{
    const QStringList order = constructors();
    const int monitor = indexOf(order, "ButtonMonitor.cpp");
    const int alphabet = indexOf(order, "Base64Encoder.cpp");
    const QStringList streams = order.mid(monitor + 1, alphabet - monitor - 1);
    EXPECT_FALSE(streams.isEmpty());
    for (const QString& constructor : streams)
        EXPECT_TRUE(initialisesStreams(constructor)) << constructor.toStdString();
    EXPECT_EQ(order.size() - 2, alphabet);
}

TEST(StaticConstruction, NothingComesBeforeTheServicesObject)
{
    const QStringList order = constructors();
    EXPECT_EQ(0, indexOf(order, "PlatformServicesImp.cpp"));
    EXPECT_EQ(1, indexOf(order, "ButtonMonitor.cpp"));
}

} // namespace

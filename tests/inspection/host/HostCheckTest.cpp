#include "inspection/host/HostCheck.h"
#include "inspection/host/HostFunctions.h"
#include "tests/inspection/host/HostFile.h"

#include <algorithm>
#include <sys/stat.h>

namespace {

using Kind = HostFinding::Kind;
using Severity = HostFinding::Severity;

class HostCheckTest : public testing::Test
{
protected:
    // Shared, because reading the application and all that it needs is most of the work.
    static HostReport check(const QString& path)
    {
        static HostCheck shared(QUAYSIDE_PROGRAM);
        return shared.check(path);
    }

    HostReport checkBytes(const QByteArray& bytes) { return check(m_folder.file("a.so", bytes)); }

    // The findings of that kind, in words.
    static QString textsOf(const HostReport& report, Kind kind)
    {
        QStringList texts;
        for (const HostFinding& finding : report.findings) {
            if (finding.kind == kind)
                texts << finding.text;
        }
        return texts.join('\n');
    }

    static std::string allTexts(const HostReport& report)
    {
        QString texts;
        for (const HostFinding& finding : report.findings)
            texts += finding.severityName() + ' ' + finding.kindName() + ": " + finding.text + '\n';
        return texts.toStdString();
    }

    static void expectOne(const HostReport& report, Severity severity, Kind kind)
    {
        ASSERT_EQ(1, report.findings.size()) << allTexts(report);
        EXPECT_EQ(severity, report.findings.first().severity) << allTexts(report);
        EXPECT_EQ(kind, report.findings.first().kind) << allTexts(report);
    }

    FileFolder m_folder;
};

TEST_F(HostCheckTest, HasNothingToSayOfAProperLibrary)
{
    const HostReport report = check(testLibrary("proper"));
    EXPECT_TRUE(report.willLoad());
    EXPECT_TRUE(report.findings.isEmpty()) << allTexts(report);
    EXPECT_EQ("libhostcheck_proper.so", report.soname);
    EXPECT_EQ(ElfIdentity::ofThisProcess().text(), report.machine);
}

TEST_F(HostCheckTest, NamesThePathOfEachNeed)
{
    const HostReport report = check(testLibrary("proper"));
    const auto base =
        std::find_if(report.needs.begin(), report.needs.end(),
                     [](const HostNeed& need) { return need.name == "libKdPlatformBase.so"; });
    ASSERT_NE(report.needs.end(), base);
    EXPECT_EQ(QFileInfo(QUAYSIDE_STAND_IN).canonicalFilePath(),
              QFileInfo(base->path).canonicalFilePath());
    EXPECT_EQ(FoundBy::LoadedBefore, base->by);
}

TEST_F(HostCheckTest, NamesTheVersionsThatAreWantedAndHere)
{
    const HostReport report = check(testLibrary("proper"));
    QStringList products;
    for (const HostVersion& version : report.versions) {
        products << version.product;
        EXPECT_FALSE(version.wanted.isEmpty());
        EXPECT_FALSE(version.here.isEmpty());
    }
    EXPECT_TRUE(products.contains("glibc")) << products.join(' ').toStdString();
    EXPECT_TRUE(products.contains("Qt")) << products.join(' ').toStdString();
}

TEST_F(HostCheckTest, DemanglesAMissingSymbol)
{
    const HostReport report = check(testLibrary("missing_symbol"));
    expectOne(report, Severity::Error, Kind::Symbol);
    EXPECT_FALSE(report.willLoad());
    EXPECT_TRUE(
        textsOf(report, Kind::Symbol).contains("store::neverWritten(store::Record const*, int)"))
        << allTexts(report);
    ASSERT_EQ(1, report.missing.size());
    EXPECT_TRUE(report.missing.first().misses.isEmpty());
}

TEST_F(HostCheckTest, NamesTheCppFunctionThatIsWantedWithCLinkage)
{
    const HostReport report = check(testLibrary("c_linkage"));
    expectOne(report, Severity::Error, Kind::Symbol);
    ASSERT_EQ(1, report.missing.first().misses.size());
    const NearMiss& miss = report.missing.first().misses.first();
    EXPECT_EQ(NearMiss::Kind::HasCppLinkage, miss.kind);
    EXPECT_EQ("_Z8strcpy_sPciPKc", miss.symbol);
    EXPECT_EQ("libKdPlatformBase.so", miss.library);
    EXPECT_TRUE(textsOf(report, Kind::Symbol).contains("strcpy_s(char*, int, char const*)"));
}

TEST_F(HostCheckTest, NamesTheFunctionOfCLinkageAndTheOneOfAnotherSignature)
{
    const HostReport report = check(testLibrary("cpp_linkage"));
    ASSERT_EQ(2, report.missing.size()) << allTexts(report);
    for (const HostMissingSymbol& missing : report.missing) {
        ASSERT_EQ(1, missing.misses.size()) << missing.readable.toStdString();
        const bool isExport = missing.readable.startsWith("DecryptionAES_Export");
        EXPECT_EQ(isExport ? NearMiss::Kind::HasCLinkage : NearMiss::Kind::HasOtherSignature,
                  missing.misses.first().kind);
    }
}

TEST_F(HostCheckTest, NotesTheImportOfTheServices)
{
    const HostReport report = check(testLibrary("services"));
    expectOne(report, Severity::Note, Kind::Services);
    EXPECT_TRUE(report.importsServices);
    EXPECT_TRUE(report.willLoad());
}

TEST_F(HostCheckTest, MissesTheServicesWithoutTheApplication)
{
    HostCheck alone(m_folder.path("no program"));
    const HostReport report = alone.check(testLibrary("services"));
    EXPECT_FALSE(report.willLoad());
    EXPECT_FALSE(textsOf(report, Kind::Application).isEmpty());
    EXPECT_FALSE(textsOf(report, Kind::Symbol).isEmpty());
}

TEST_F(HostCheckTest, NamesTheGlibcThatIsTooOld)
{
    const HostReport report = check(testLibrary("newer_system"));
    EXPECT_FALSE(report.willLoad());
    const QString text = textsOf(report, Kind::Version);
    EXPECT_TRUE(text.contains("GLIBC_2.99")) << allTexts(report);
    EXPECT_TRUE(text.contains("libc.so.6")) << allTexts(report);
    ASSERT_EQ(1, report.versions.size());
    EXPECT_EQ("2.99", report.versions.first().wanted);
    EXPECT_TRUE(text.contains("GLIBC_" + report.versions.first().here)) << allTexts(report);
}

TEST_F(HostCheckTest, NamesTheOtherVersionOfASymbol)
{
    const HostReport report = check(testLibrary("newer_system"));
    ASSERT_EQ(2, report.missing.size()) << allTexts(report);
    for (const HostMissingSymbol& missing : report.missing) {
        EXPECT_EQ("GLIBC_2.99", missing.version);
        if (missing.symbol == "fromTheFuture") {
            EXPECT_TRUE(missing.misses.isEmpty());
            continue;
        }
        ASSERT_EQ(1, missing.misses.size());
        EXPECT_EQ(NearMiss::Kind::HasOtherVersion, missing.misses.first().kind);
        EXPECT_EQ("libc.so.6", missing.misses.first().library);
        EXPECT_TRUE(missing.misses.first().symbol.startsWith("gnu_get_libc_version@GLIBC_2."));
    }
}

TEST_F(HostCheckTest, TellsTheOtherMachine)
{
    const HostReport report = checkBytes(forOtherMachine(bytesOf(testLibrary("proper"))));
    expectOne(report, Severity::Error, Kind::Machine);
    EXPECT_NE(ElfIdentity::ofThisProcess().text(), report.machine);
    EXPECT_TRUE(textsOf(report, Kind::Machine).contains(report.machine));
    EXPECT_EQ(8, report.functions.size());
    EXPECT_TRUE(report.needs.isEmpty());
}

TEST_F(HostCheckTest, TellsTheOtherWidthAndSystem)
{
    QByteArray bytes = bytesOf(testLibrary("proper"));
    bytes[EI_OSABI] = ELFOSABI_FREEBSD;
    EXPECT_TRUE(textsOf(checkBytes(bytes), Kind::Machine).contains("9"));
    bytes[EI_OSABI] = 0;
    bytes[EI_CLASS] = ELFCLASS32;
    const HostReport report = check(m_folder.file("32.so", bytes));
    expectOne(report, Severity::Error, Kind::Machine);
    EXPECT_TRUE(report.machine.contains("32"));
    EXPECT_TRUE(report.functions.isEmpty());
}

TEST_F(HostCheckTest, TellsWhatIsNoLibrary)
{
    expectOne(checkBytes("#!/bin/sh\n"), Severity::Error, Kind::File);
    expectOne(check(m_folder.path()), Severity::Error, Kind::File);
    expectOne(check(m_folder.path("none")), Severity::Error, Kind::File);
    const QByteArray bytes = bytesOf(testLibrary("proper"));
    const QString cut = m_folder.file("cut.so", bytes.left(4000));
    expectOne(check(cut), Severity::Error, Kind::File);
}

TEST_F(HostCheckTest, TellsAProgram)
{
    const HostReport report = check(QUAYSIDE_PROGRAM);
    EXPECT_FALSE(report.willLoad());
    EXPECT_FALSE(textsOf(report, Kind::Type).isEmpty()) << allTexts(report);
}

TEST_F(HostCheckTest, NamesTheLibraryThatIsNotFound)
{
    const HostReport report = check(testLibrary("pathless"));
    EXPECT_FALSE(report.willLoad());
    EXPECT_TRUE(textsOf(report, Kind::Library).contains("libhostcheck_helper.so"));
    EXPECT_EQ(Severity::Warning, report.findings.last().severity) << allTexts(report);
    EXPECT_EQ(Kind::Symbol, report.findings.last().kind) << allTexts(report);
    EXPECT_TRUE(check(testLibrary("rpath")).willLoad());
    EXPECT_TRUE(check(testLibrary("runpath")).willLoad());
}

TEST_F(HostCheckTest, NamesTheLibrariesThatWerePassedOver)
{
    const QByteArray name = "libhostcheck_helper.so";
    const QByteArray helper = bytesOf(QUAYSIDE_TEST_LIBRARIES "/helper/libhostcheck_helper.so");
    SearchPlaces places = SearchPlaces::ofThisSystem();
    places.libraryPath = QFile::encodeName(m_folder.path());
    HostCheck check(QUAYSIDE_PROGRAM, places);
    const QString wrong = m_folder.file(name, forOtherMachine(helper));
    EXPECT_TRUE(textsOf(check.check(testLibrary("pathless")), Kind::Library).contains(wrong));
}

TEST_F(HostCheckTest, WarnsOfTextRelocations)
{
    const HostReport report = check(testLibrary("text_relocation"));
    expectOne(report, Severity::Warning, Kind::TextRelocation);
    EXPECT_TRUE(report.hasTextRelocations);
    EXPECT_TRUE(report.willLoad());
}

TEST_F(HostCheckTest, WarnsOfAnExecutableStackAlsoWhereTheFileSaysNothing)
{
    const HostReport report = check(testLibrary("executable_stack"));
    EXPECT_TRUE(report.wantsExecutableStack);
    EXPECT_FALSE(textsOf(report, Kind::Stack).isEmpty());
    QByteArray bytes = bytesOf(testLibrary("proper"));
    const quint64 offset = offsetOfSegment(bytes, PT_GNU_STACK);
    auto segment = recordAt<Elf64_Phdr>(bytes, offset);
    segment.p_type = PT_NULL;
    setRecordAt(bytes, offset, segment);
    expectOne(checkBytes(bytes), Severity::Warning, Kind::Stack);
}

TEST_F(HostCheckTest, TellsWhichHostFunctionsAreDefined)
{
    const HostReport report = check(testLibrary("other_definitions"));
    QStringList defined;
    for (const HostFunctionState& function : report.functions) {
        if (function.isDefined)
            defined << function.name;
    }
    EXPECT_EQ(QStringList{"updateCStringManagerData"}, defined);
    const QString texts = textsOf(report, Kind::HostFunction);
    EXPECT_TRUE(texts.contains("setPlatformServices as setPlatformServices,")) << allTexts(report);
    EXPECT_TRUE(texts.contains("_Z14GetProcAddressPvPKw")) << allTexts(report);
}

TEST_F(HostCheckTest, TakesALibraryForTheApplicationsOwnOfThatName)
{
    const HostReport report = check(QUAYSIDE_TEST_HOST);
    expectOne(report, Severity::Note, Kind::Application);
    EXPECT_TRUE(std::all_of(report.functions.begin(), report.functions.end(),
                            [](const HostFunctionState& function) { return function.isDefined; }));
}

// A library in the place of the application's own one is to have what the application wants of it.
TEST_F(HostCheckTest, ChecksWhatTheApplicationWantsOfItsReplacement)
{
    const QByteArray bytes = bytesOf(testLibrary("other_definitions"));
    const HostReport report = check(m_folder.file("libKdPlatformBase.so", bytes));
    EXPECT_FALSE(report.willLoad());
    const QString texts = textsOf(report, Kind::Symbol);
    EXPECT_TRUE(texts.contains("setPlatformServices(IPlatformServices*)")) << allTexts(report);
    EXPECT_TRUE(texts.contains("g_globalSettings")) << allTexts(report);
    EXPECT_FALSE(texts.contains("updateCStringManagerData")) << allTexts(report);
    EXPECT_FALSE(texts.contains("InitOrbxConfig")) << allTexts(report);
}

// The table of the functions against the program that asks for them and a library that has them
// all.
TEST(HostFunctions, AreThoseThatTheApplicationAsksFor)
{
    const auto library = readElfObject(QUAYSIDE_TEST_HOST);
    const auto program = readElfObject(QUAYSIDE_PROGRAM);
    for (const HostFunction& function : hostFunctions()) {
        EXPECT_TRUE(library->symbols.exports.contains(function.symbol)) << function.symbol;
        const auto& imports = program->symbols.imports;
        const bool isWanted =
            std::any_of(imports.begin(), imports.end(),
                        [&](const ElfImport& import) { return import.name == function.symbol; });
        EXPECT_EQ(function.isOptional, !isWanted) << function.symbol; // optional ones are weak
    }
    EXPECT_TRUE(program->symbols.exports.contains(servicesSymbol));
}

} // namespace

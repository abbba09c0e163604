#include "tests/ctl/CtlTest.h"

namespace {

class CtlProfiles : public CtlTest
{
protected:
    CtlProfiles() { write("p.ini", m_plain); }

    QByteArray m_plain = "[s]\nk=v\nother=x\n";
};

TEST_F(CtlProfiles, ListWhatEachFamilyFindsAndReads)
{
    write("p.ini", "[s]\nk=v\nlist=1, 2\ntwo=1=2\n");
    EXPECT_EQ(out({"profile", "list", "p.ini"}), "s\tk\tboth\tv\tv\n"
                                                 "s\tlist\tboth\t\t1, 2\n"
                                                 "s\ttwo\twide\t1=2\t\n");
    EXPECT_EQ(out({"profile", "list", "p.ini", "--narrow"}).count('\n'), 2);
    EXPECT_EQ(out({"profile", "list", "p.ini", "--wide"}).count('\n'), 3);
    EXPECT_EQ(out({"profile", "list", "p.ini", "s", "k"}), "s\tk\tboth\tv\tv\n");
    EXPECT_EQ(status({"profile", "list", "p.ini", "none"}), 1);
    EXPECT_EQ(status({"profile", "list", "none.ini"}), 3);
    EXPECT_EQ(status({"profile", "list", "."}), 3);
}

TEST_F(CtlProfiles, PrintWhatAFamilyReads)
{
    write("p.ini", "[s]\nk=v\ntwo=1=2\nempty=\n");
    EXPECT_EQ(out({"profile", "get", "p.ini", "s", "k", "--wide"}), "v\n");
    EXPECT_EQ(out({"profile", "get", "p.ini", "s", "k"}), "wide\tv\nnarrow\tv\n");
    EXPECT_EQ(out({"profile", "get", "p.ini", "s", "two"}), "wide\t1=2\n");
    EXPECT_EQ(status({"profile", "get", "p.ini", "s", "two", "--narrow"}), 1);
    EXPECT_EQ(out({"profile", "get", "p.ini", "s", "empty", "--narrow"}), "\n");
    EXPECT_EQ(status({"profile", "get", "p.ini", "s", "none"}), 1);
    EXPECT_EQ(status({"profile", "get", "p.ini", "s", "k", "--wide", "--narrow"}), 2);
    EXPECT_EQ(status({"profile", "get", "none.ini", "s", "k"}), 3);
}

TEST_F(CtlProfiles, AreWrittenThroughTheFamilyThatIsNamed)
{
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "new", "--wide"}), 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=new\nother=x\n");
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "newer", "--narrow"}), 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=newer\nother=x\n");
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "x"}), 2);
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "", "x", "--wide"}), 2);
    EXPECT_EQ(status({"profile", "set", "fresh.ini", "s", "k", "x", "--narrow"}), 0);
    EXPECT_EQ(read("fresh.ini"), "[s]\nk=x\n");
}

TEST_F(CtlProfiles, ShowTheWholeDifferenceInADryRun)
{
    EXPECT_EQ(out({"profile", "set", "p.ini", "s", "k", "new", "--wide", "--dry-run"}),
              "--- p.ini\n+++ p.ini\n@@ -1,3 +1,3 @@\n [s]\n-k=v\n+k=new\n other=x\n");
    EXPECT_EQ(status({"profile", "delete", "p.ini", "s", "k", "--wide", "--dry-run"}), 0);
    EXPECT_EQ(read("p.ini"), m_plain);
}

TEST_F(CtlProfiles, ChangeOtherLinesOnlyWhenForced)
{
    const QByteArray file("; remark\n[s]\nk=v\n");
    write("p.ini", file);
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "new", "--wide"}), 1);
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "new", "--wide", "--dry-run"}), 1);
    EXPECT_EQ(read("p.ini"), file);
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "new", "--wide", "--force"}), 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=new\n");
}

TEST_F(CtlProfiles, StayAsTheyAreWhereTheFamilyWouldNotReadItBack)
{
    EXPECT_EQ(status({"profile", "set", "p.ini", "s", "k", "a=b", "--narrow"}), 3);
    EXPECT_EQ(read("p.ini"), m_plain);
}

TEST_F(CtlProfiles, StayAsTheyAreWhereTheDiskIsFull)
{
    const Result result = shell("text=$(printf 'x%.0s' {1..900}); ulimit -f 1;"
                                "$CTL profile set p.ini s k $text --narrow &&"
                                "$CTL profile set p.ini s l $text --narrow");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(read("p.ini").startsWith("[s]\nk=xxx"));
    EXPECT_TRUE(read("p.ini").endsWith("x\nother=x\n"));
}

TEST_F(CtlProfiles, LoseKeysAndSections)
{
    write("p.ini", "; remark\n[s]\nk=v\nl=v\n[t]\nk=v\n");
    EXPECT_EQ(status({"profile", "delete", "p.ini", "s", "k", "--narrow"}), 0);
    EXPECT_EQ(read("p.ini"), "; remark\n[s]\nl=v\n[t]\nk=v\n");
    EXPECT_EQ(status({"profile", "delete", "p.ini", "s", "k", "--narrow"}), 1);
    EXPECT_EQ(status({"profile", "delete", "p.ini", "t", "--wide"}), 0);
    EXPECT_EQ(read("p.ini"), "; remark\n[s]\nl=v\n");
    EXPECT_EQ(status({"profile", "delete", "none.ini", "t", "--wide"}), 3);
}

TEST_F(CtlProfiles, TakeTheEntriesOfAnotherProfile)
{
    const QByteArray other("[s]\nk=new\n[t]\nl=1\n");
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--wide", "--dry-run"}, other).status, 0);
    EXPECT_EQ(read("p.ini"), m_plain);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow"}, other).status, 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=new\nother=x\n[t]\nl=1\n");
    EXPECT_EQ(run({"profile", "merge", "p.ini"}, other).status, 2);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--wide"}, "").status, 0);
}

TEST_F(CtlProfiles, TakeEntriesThatTheFamilyLosesOnlyWhenForced)
{
    for (const QByteArray& line : {QByteArray("c=1,2\n"), QByteArray("b=x;y\n")}) {
        const Result refused = run({"profile", "merge", "p.ini", "--wide"}, "[s]\n" + line);
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.error.contains("line 2"));
        EXPECT_EQ(read("p.ini"), m_plain);
    }
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow"}, "[s]\nc=1,2\n").status, 0);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--wide", "--force"}, "[s]\nb=x;y\n").status, 0);
    EXPECT_TRUE(read("p.ini").contains("b=x\n"));
}

TEST_F(CtlProfiles, TakeANewSectionBehindAChangedEntry)
{
    write("p.ini", "[s]\nk=v\n");
    for (const QString& family : QStringList{"--narrow", "--wide"})
        EXPECT_EQ(
            run({"profile", "merge", "p.ini", family, "--dry-run"}, "[s]\nk=w\n[t]\nl=1\n").status,
            0);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow"}, "[s]\nk=w\n[t]\nl=1\n").status, 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=w\n[t]\nl=1\n");
}

TEST_F(CtlProfiles, LoseOtherLinesToAMergeOnlyWhenForced)
{
    const QByteArray file("; remark\n[s]\nk=v\n");
    write("p.ini", file);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow"}, "[s]\nk=w\n").status, 1);
    EXPECT_EQ(read("p.ini"), file);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow"}, "[s]\nk=v\n").status, 0);
    EXPECT_EQ(read("p.ini"), file);
    EXPECT_EQ(run({"profile", "merge", "p.ini", "--narrow", "--force"}, "[s]\nk=w\n").status, 0);
    EXPECT_EQ(read("p.ini"), "[s]\nk=w\n");
}

TEST_F(CtlProfiles, AreReadAndMergedInTimeWithAHundredThousandEntries)
{
    QByteArray large;
    for (int section = 0; section < manyValues() / 1000; ++section) {
        large += "[section" + QByteArray::number(section) + "]\n";
        for (int key = 0; key < 1000; ++key)
            large += "key" + QByteArray::number(key) + "=value\n";
    }
    write("large.ini", large);
    EXPECT_EQ(out({"profile", "list", "large.ini"}).count("\tboth\tvalue\tvalue\n"), manyValues());
    EXPECT_EQ(status({"profile", "compare", "large.ini"}), 0);
    for (const QString& family : QStringList{"--narrow", "--wide"}) {
        write("p.ini", m_plain);
        EXPECT_EQ(run({"profile", "merge", "p.ini", family}, large).status, 0);
        EXPECT_EQ(read("p.ini").count("=value\n"), manyValues());
        EXPECT_TRUE(read("p.ini").contains("k=v\nother=x\n"));
    }
}

TEST_F(CtlProfiles, TellNamesThatAFamilyKnowsOtherwise)
{
    write("a.ini", "[s]\n中=1\n%41=1\nq=\"v\"\n");
    const Result result = run({"profile", "check", "a.ini"});
    EXPECT_EQ(result.status, 1);
    for (const char* line : {"\na.ini:3: wide: ", "\na.ini:4: wide: "})
        EXPECT_TRUE(result.out.contains(line)) << line;
    EXPECT_TRUE(result.out.startsWith("a.ini:2: wide: "));
    EXPECT_FALSE(result.out.contains("narrow"));
}

TEST_F(CtlProfiles, AreCheckedInLinesThatEditorsJumpTo)
{
    write("a.ini", "[s]\nno\nk=v\n");
    const Result result = run({"profile", "check", "a.ini", "p.ini"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.out.startsWith("a.ini:2: wide: Dropped"));
    EXPECT_TRUE(result.out.contains("\na.ini:2: narrow: Dropped"));
    EXPECT_EQ(result.out.count('\n'), 2);
    EXPECT_EQ(out({"profile", "check", "a.ini", "--narrow"}).count('\n'), 1);
    EXPECT_EQ(status({"profile", "check", "p.ini"}), 0);
    EXPECT_EQ(status({"profile", "check", "none.ini"}), 3);
    write("c.ini", "; remark\n[s]\nk=v\n");
    EXPECT_EQ(status({"profile", "check", "c.ini"}), 0);
    EXPECT_EQ(status({"profile", "check", "c.ini", "--comments"}), 1);
}

TEST_F(CtlProfiles, TellFindingsAsJsonToo)
{
    write("a.ini", "[s]\nno\n");
    EXPECT_TRUE(out({"--json", "profile", "check", "a.ini", "--narrow"})
                    .contains("{\"family\":\"narrow\",\"file\":\"a.ini\",\"line\":\"2\","));
}

TEST_F(CtlProfiles, AreComparedFamilyWithFamily)
{
    EXPECT_EQ(status({"profile", "compare", "p.ini"}), 0);
    write("p.ini", "[s]\nk=v\nlist=1, 2\ntwo=1=2\n");
    const Result result = run({"profile", "compare", "p.ini"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "s\tlist\t\t1, 2\ns\ttwo\t1=2\t\n");
}

TEST_F(CtlProfiles, MayHaveChineseNames)
{
    EXPECT_EQ(status({"profile", "set", "名.ini", "节", "键", "值", "--narrow"}), 0);
    EXPECT_EQ(read("名.ini"), "[节]\n键=值\n");
    EXPECT_EQ(out({"profile", "get", "名.ini", "节", "键", "--narrow"}), "值\n");
}

} // namespace

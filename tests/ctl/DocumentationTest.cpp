#include "tests/ctl/CtlTest.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/// The documents beside the program: what they say is tried.
class CtlDocumentation : public CtlTest
{
protected:
    static QString source(const char* name)
    {
        QFile file(QStringLiteral(QUAYSIDE_SOURCES "/") + QLatin1String(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    /// Group and name of every command.
    QStringList commands() const
    {
        QStringList names;
        const QRegularExpression row(QStringLiteral("^  ([a-z]+ [a-z0-9]+) "),
                                     QRegularExpression::MultilineOption);
        auto found = row.globalMatch(QString::fromUtf8(out({"--help"})));
        while (found.hasNext())
            names += found.next().captured(1);
        return names;
    }

    QStringList optionsOf(const QString& command) const
    {
        QStringList options;
        const QRegularExpression option(QStringLiteral("--[a-z0-9-]+"));
        const QByteArray help = out(command.split(' ') + QStringList("--help"));
        auto found = option.globalMatch(QString::fromUtf8(help));
        while (found.hasNext())
            options += found.next().captured();
        return options;
    }

    /// What bash completes the words to; the last one is incomplete.
    QByteArray completed(const QString& words) const
    {
        return shell(QStringLiteral("source %1/packaging/quaysidectl.bash;"
                                    "COMP_WORDS=(\"$CTL\" %2); COMP_CWORD=$((${#COMP_WORDS[@]}-1));"
                                    "_quaysidectl \"$CTL\"; echo \"${COMPREPLY[*]}\"")
                         .arg(QStringLiteral(QUAYSIDE_SOURCES), words))
            .out;
    }
};

TEST_F(CtlDocumentation, HasManualsOfEveryCommandAndOption)
{
    ASSERT_GE(commands().size(), 24);
    for (const char* file : {"docs/quaysidectl.1", "docs/zh_CN/quaysidectl.1"}) {
        const QString manual = source(file).replace("\\-", "-");
        for (const QString& command : commands()) {
            EXPECT_TRUE(manual.contains(command)) << file << ": " << command.toStdString();
            for (const QString& option : optionsOf(command))
                EXPECT_TRUE(manual.contains(option)) << file << ": " << option.toStdString();
        }
    }
}

TEST_F(CtlDocumentation, ComparesWithPeersByCommandsThatWork)
{
    write("p.ini", "[s]\nk=v\nl=w\n");
    write("other.ini", "[t]\nm=1\n");
    write("s.ini", "[A]\nv=5$text\n[B]\nv=5$x\n");
    write("file.reg", "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\D]\r\n\"v\"=\"x\"\r\n");
    write("old.reg", "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\D]\r\n\"v\"=\"\xD6\xD0\"\r\n");
    const QRegularExpression row(QStringLiteral(R"(^\|.*\| `(.*quaysidectl .*)` \| ([0-9]+) \|$)"),
                                 QRegularExpression::MultilineOption);
    auto found = row.globalMatch(source("docs/CTL.md"));
    int rows = 0;
    for (; found.hasNext(); ++rows) {
        const QRegularExpressionMatch match = found.next();
        const Result result =
            shell(match.captured(1).replace(QStringLiteral("quaysidectl"), QStringLiteral("$CTL")));
        EXPECT_EQ(result.status, match.captured(2).toInt())
            << match.captured(1).toStdString() << '\n'
            << result.error.toStdString();
    }
    EXPECT_GE(rows, 35);
}

TEST_F(CtlDocumentation, CompletesCommandsAndOptions)
{
    if (isEmulated())
        GTEST_SKIP() << "the shell starts the program by its name alone, without the emulator";
    EXPECT_EQ(completed("reg"), "registry\n");
    EXPECT_EQ(completed("registry re"), "rename\n");
    EXPECT_EQ(completed("--store x registry ch"), "check\n");
    EXPECT_EQ(completed("registry set A v --st"), "--store --strict\n");
    EXPECT_EQ(completed("--j"), "--json\n");
    write("profile.ini", "");
    EXPECT_EQ(completed("profile list prof"), "profile.ini\n");
}

} // namespace

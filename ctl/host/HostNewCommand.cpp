#include "ctl/host/HostNewCommand.h"

#include "app/Version.h"
#include "ctl/Failure.h"
#include "ctl/Output.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace {

const QString templateFolder = QStringLiteral(":/skeleton");
const QString templateEnding = QStringLiteral(".in");

QString reasonText()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

// It becomes the name of a CMake target, and stands in texts of C++.
void refuseOddName(const QString& name)
{
    static const QRegularExpression usual(QStringLiteral("^[A-Za-z][A-Za-z0-9_-]*$"));
    if (!usual.match(name).hasMatch())
        throw Failure(
            ExitStatus::WrongUsage,
            HostNewCommand::tr("\"%1\" is no name of a library: letters, digits, \"-\" and "
                               "\"_\" make one, a letter first.")
                .arg(name));
}

// "1.0": what any later version with the same first number serves as well.
QByteArray wantedVersion()
{
    return QString::fromLatin1(programVersion()).section('.', 0, 1).toUtf8();
}

QByteArray filled(const QString& templateName, const QString& name)
{
    QFile file(templateFolder + '/' + templateName);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(file.errorString());
    return file.readAll().replace("@NAME@", name.toUtf8()).replace("@VERSION@", wantedVersion());
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(
            HostNewCommand::tr("%1 cannot be written: %2.").arg(path, file.errorString()));
}

// The names of the files that are written into the folder.
QStringList writeFiles(const QString& folder, const QString& name)
{
    QStringList files;
    const QStringList templates = QDir(templateFolder).entryList(QDir::Files, QDir::Name);
    for (const QString& templateName : templates) {
        files += templateName.chopped(templateEnding.size());
        writeFile(folder + '/' + files.last(), filled(templateName, name));
    }
    return files;
}

// As a folder that a shell has made: a temporary one is its owner's alone.
void openToOthers(const QString& folder)
{
    const mode_t mask = umask(0);
    umask(mask);
    static_cast<void>(chmod(QFile::encodeName(folder).constData(), 0777 & ~mask));
}

} // namespace

// All files appear at once, under a name that nothing has, when the list of them is out.
ExitStatus HostNewCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = QDir::cleanPath(arguments.at(0));
    const QFileInfo target(path);
    refuseOddName(target.fileName());
    if (target.exists() || target.isSymLink())
        throw Failure(ExitStatus::No, tr("%1 is there already.").arg(path));
    QTemporaryDir folder(target.path() + QStringLiteral("/.quayside-XXXXXX"));
    if (!folder.isValid())
        throw Failure(tr("%1 cannot be written: %2.").arg(path, folder.errorString()));
    const QStringList files = writeFiles(folder.path(), target.fileName());
    openToOthers(folder.path());
    output.begin({Columns::file});
    for (const QString& file : files)
        output.record({path + '/' + file});
    output.flush();
    if (std::rename(QFile::encodeName(folder.path()).constData(),
                    QFile::encodeName(path).constData()) != 0)
        throw Failure(tr("%1 cannot be written: %2.").arg(path, reasonText()));
    folder.setAutoRemove(false);
    return ExitStatus::Done;
}

#include "app/StartUp.h"
#include "ctl/ExitStatus.h"
#include "ctl/Interruption.h"
#include "ctl/Message.h"
#include "ctl/Program.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <langinfo.h>
#include <memory>
#include <unistd.h>

namespace {

// Where no locale is chosen, as in many scripts, names of files and texts are UTF-8 all the same:
// Qt would lose all characters that are not ASCII, and the widths of characters would not be known.
void takeUtf8WithoutLocale()
{
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") != 0)
        return;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
}

// Qt warns of surroundings, such as a folder that a session would have, that are none of the user's
// concern here.
void tellQtFailures(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        showMessage(text);
    if (type == QtFatalMsg)
        std::_Exit(static_cast<int>(ExitStatus::Failed)); // Qt would leave a core behind
}

// Where one is closed, the next file that is opened would take its place, and be read or written
// instead. What stands there now fails as a closed one does.
void keepStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0)
            static_cast<void>(open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

// Such an argument would mean another file, or another key, than the one that is asked for.
bool areReadable(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        QTextCodec::ConverterState state;
        const QString text = QTextCodec::codecForLocale()->toUnicode(
            argv[i], static_cast<int>(qstrlen(argv[i])), &state);
        if (state.invalidChars == 0 && state.remainingChars == 0)
            continue;
        showMessage(
            Program::tr("The argument \"%1\" is not in the encoding of the locale.").arg(text));
        return false;
    }
    return true;
}

// Qt's own texts: beside the program, or where it is installed. The application looks for them
// below the working directory alone.
void loadQtCatalogue(QTranslator& translator)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const char* place : {"translations", QUAYSIDE_INSTALLED_TRANSLATIONS}) {
        if (translator.isEmpty())
            static_cast<void>(translator.load(QStringLiteral("qt_zh_CN.qm"),
                                              folder.filePath(QLatin1String(place))));
    }
}

bool isChineseLocale()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::Chinese && locale.script() == QLocale::SimplifiedHanScript;
}

// The screens and the keys of the display that there is; without one, and for fonts, Qt's own that
// shows nothing.
void choosePlatform(bool isForFonts)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    QByteArray platforms = "offscreen";
    if (!isForFonts && !qEnvironmentVariableIsEmpty("DISPLAY"))
        platforms.prepend("xcb;");
    qputenv("QT_QPA_PLATFORM", platforms);
}

// A replay has a display of its own, that shows nothing. What stands behind "trace record" is the
// arguments of another program.
bool isReplay(int argc, char** argv)
{
    constexpr const char* words[] = {"replay", "minimise", "test"};
    char** const end = argv + argc;
    char** const group =
        std::find_if(argv + 1, end, [](const char* word) { return qstrcmp(word, "trace") == 0; });
    return group < end - 1 &&
           std::any_of(std::begin(words), std::end(words),
                       [&](const char* word) { return qstrcmp(group[1], word) == 0; });
}

// Qt's graphical start takes many times as long as the other one: only for the commands that need
// it, before the arguments can be read. A word that only looks like one does no harm.
std::unique_ptr<QCoreApplication> application(int& argc, char** argv)
{
    if (isReplay(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }
    for (int i = 1; i < argc; ++i) {
        const QByteArray word(argv[i]);
        if (word != "fonts" && word != "displays" && word != "input")
            continue;
        choosePlatform(word == "fonts");
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    keepStandardDescriptors();
    qInstallMessageHandler(tellQtFailures);
    const std::unique_ptr<QCoreApplication> started = application(argc, argv);
    // The application's, by which its host library finds the store.
    QCoreApplication::setApplicationName(QStringLiteral("quayside"));
    takeUtf8WithoutLocale();
    QTranslator appTranslator;
    QTranslator qtTranslator;
    if (isChineseLocale()) {
        StartUp::installChinese(appTranslator, qtTranslator);
        loadQtCatalogue(qtTranslator);
    }
    if (!areReadable(argc, argv))
        return static_cast<int>(ExitStatus::WrongUsage);
    Interruption::note();
    Program program(QCoreApplication::arguments());
    const int status = static_cast<int>(program.run());
    // Without the destructors of the store, which would save what a failed command has changed.
    if (program.isToBeDropped())
        std::_Exit(status);
    return status;
}

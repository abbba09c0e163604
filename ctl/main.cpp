#include "app/StartUp.h"
#include "ctl/Interruption.h"
#include "ctl/Program.h"

#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

#include <cstdlib>
#include <langinfo.h>

namespace {

// Where no locale is chosen, as in many scripts, names of files and texts are UTF-8 all the same:
// Qt would lose all characters that are not ASCII.
void takeUtf8WithoutLocale()
{
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

bool isChineseLocale()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::Chinese && locale.script() == QLocale::SimplifiedHanScript;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    // The application's, by which its host library finds the store.
    QCoreApplication::setApplicationName(QStringLiteral("quayside"));
    takeUtf8WithoutLocale();
    QTranslator appTranslator;
    QTranslator qtTranslator;
    if (isChineseLocale())
        StartUp::installChinese(appTranslator, qtTranslator);
    Interruption::note();
    Program program(QCoreApplication::arguments());
    const int status = static_cast<int>(program.run());
    // Without the destructors of the store, which would save what a failed command has changed.
    if (program.isToBeDropped())
        std::_Exit(status);
    return status;
}

#include "app/CommandLine.h"

#include "app/ServicesObject.h"
#include "host/HostLibraries.h"

#include <QCoreApplication>
#include <QTranslator>

#include <cstring>

// In the global namespace, as the macro demands: programs that link the libraries in the ordinary
// way would otherwise lose the resources, which nothing else references.
static void keepResources()
{
    Q_INIT_RESOURCE(quayside);
}

namespace {

constexpr int simplifiedChinese = 2052;

// The value of the last pair with this key; empty when there is none. One argument too many and no
// option at all is read. Intended: a key without its value makes every pairing doubtful.
QString optionValue(int argc, char** argv, const char* key)
{
    QString value;
    if (argc % 2 == 0)
        return value;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], key) == 0)
            value = QString::fromUtf8(argv[i + 1]);
    }
    return value;
}

// 0 where the configuration library is absent or cannot be set up.
int configuredLanguage(const QString& requested)
{
    if (!InitOrbxConfig || InitOrbxConfig(requested.toStdWString().c_str()) != 0)
        return 0;
    if (CreateConfigReg)
        CreateConfigReg();
    return GetCurrentOrbxLanguageId ? GetCurrentOrbxLanguageId() : 0;
}

// A catalogue that does not load translates nothing, so the result is of no interest.
void install(QTranslator& translator, const QString& path)
{
    static_cast<void>(translator.load(path));
    QCoreApplication::installTranslator(&translator);
}

} // namespace

void parseCommandLine(int argc, char** argv, QTranslator& appTranslator, QTranslator& qtTranslator)
{
    const QString language = optionValue(argc, argv, "/language");
    setPlatformServices(servicesObject());
    const int identifier = configuredLanguage(language);
    if (identifier != simplifiedChinese && language != QLatin1String("zh-CN"))
        return;
    keepResources();
    install(appTranslator, QStringLiteral(":/translator/kdlm_zh.qm"));
    // Below the working directory, not beside the executable: each deployment brings its own.
    install(qtTranslator, QStringLiteral("./translations/qt_zh_CN.qm"));
}

QString requestedPage(int argc, char** argv)
{
    return optionValue(argc, argv, "/page");
}

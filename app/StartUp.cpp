#include "app/StartUp.h"

#include "app/ServicesObject.h"
#include "host/HostLibraries.h"

#include <QCoreApplication>
#include <QTranslator>

// What the configuration library defines is null here where there is none. Said here and not where
// the functions are declared: there it would make the definitions of whoever includes the header
// weak too. NOLINTBEGIN(readability-redundant-declaration)
[[gnu::weak]] int InitOrbxConfig(const wchar_t* language);
[[gnu::weak]] void CreateConfigReg();
[[gnu::weak]] int GetCurrentOrbxLanguageId();
// NOLINTEND(readability-redundant-declaration)

// In the global namespace, as the macro demands: programs that link the libraries in the ordinary
// way would otherwise lose the resources, which nothing else references.
static void keepResources()
{
    Q_INIT_RESOURCE(quayside);
}

namespace {

constexpr int simplifiedChinese = 2052;

// A catalogue that does not load translates nothing, so the result is of no interest.
void install(QTranslator& translator, const QString& path)
{
    static_cast<void>(translator.load(path));
    QCoreApplication::installTranslator(&translator);
}

} // namespace

// 0 where the configuration library is absent or cannot be set up.
int StartUp::handOver(const QString& requestedLanguage)
{
    setPlatformServices(servicesObject());
    if (!InitOrbxConfig || InitOrbxConfig(requestedLanguage.toStdWString().c_str()) != 0)
        return 0;
    if (CreateConfigReg)
        CreateConfigReg();
    return GetCurrentOrbxLanguageId ? GetCurrentOrbxLanguageId() : 0;
}

bool StartUp::isChinese(int identifier)
{
    return identifier == simplifiedChinese;
}

void StartUp::installChinese(QTranslator& appTranslator, QTranslator& qtTranslator)
{
    keepResources();
    install(appTranslator, QStringLiteral(":/translator/kdlm_zh.qm"));
    // Below the working directory, not beside the executable: each deployment brings its own.
    install(qtTranslator, QStringLiteral("./translations/qt_zh_CN.qm"));
}

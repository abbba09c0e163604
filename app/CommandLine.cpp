#include "app/CommandLine.h"

#include "app/StartUp.h"

#include <cstring>

namespace {

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

} // namespace

void parseCommandLine(int argc, char** argv, QTranslator& appTranslator, QTranslator& qtTranslator)
{
    const QString language = optionValue(argc, argv, "/language");
    const int identifier = StartUp::handOver(language);
    if (StartUp::isChinese(identifier) || language == QLatin1String("zh-CN"))
        StartUp::installChinese(appTranslator, qtTranslator);
}

QString requestedPage(int argc, char** argv)
{
    return optionValue(argc, argv, "/page");
}

QString requestedFile(int argc, char** argv)
{
    return optionValue(argc, argv, "/open");
}

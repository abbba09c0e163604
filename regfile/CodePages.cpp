#include "regfile/CodePages.h"

#include <QCoreApplication>
#include <QTextCodec>

namespace {

struct Row
{
    const char* name;
    const char* language;
};

constexpr Row rows[] = {{"GB18030", QT_TRANSLATE_NOOP("CodePages", "Simplified Chinese")},
                        {"Big5", QT_TRANSLATE_NOOP("CodePages", "Traditional Chinese")},
                        {"Shift_JIS", QT_TRANSLATE_NOOP("CodePages", "Japanese")},
                        {"windows-949", QT_TRANSLATE_NOOP("CodePages", "Korean")},
                        {"windows-1252", QT_TRANSLATE_NOOP("CodePages", "Western European")},
                        {"windows-1250", QT_TRANSLATE_NOOP("CodePages", "Central European")},
                        {"windows-1251", QT_TRANSLATE_NOOP("CodePages", "Cyrillic")},
                        {"windows-1253", QT_TRANSLATE_NOOP("CodePages", "Greek")},
                        {"windows-1254", QT_TRANSLATE_NOOP("CodePages", "Turkish")}};

} // namespace

std::vector<CodePage> offeredCodePages()
{
    const QByteArray system = QTextCodec::codecForLocale()->name();
    std::vector<CodePage> offered = {
        {system, QCoreApplication::translate("CodePages", "The system's: %1")
                     .arg(QString::fromLatin1(system))}};
    for (const Row& row : rows) {
        if (QTextCodec::codecForName(row.name))
            offered.push_back({row.name, QCoreApplication::translate("CodePages", row.language) +
                                             QStringLiteral(" (%1)").arg(QLatin1String(row.name))});
    }
    return offered;
}

bool isSameCodePage(const QByteArray& first, const QByteArray& second)
{
    return QTextCodec::codecForName(first) == QTextCodec::codecForName(second);
}

#include "inspection/registry/RemovalText.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct RemovalTexts
{
    Q_DECLARE_TR_FUNCTIONS(RemovalText)
};

QString namesOf(const std::vector<RegistryValueName>& values)
{
    constexpr std::size_t mostNamed = RemovalText::mostNamed;
    QStringList lines;
    for (std::size_t i = 0; i < values.size() && i < mostNamed; ++i)
        lines.append(values[i].name);
    if (values.size() > mostNamed)
        lines.append(
            RemovalTexts::tr("and %1 more")
                .arg(QLocale().toString(static_cast<qulonglong>(values.size() - mostNamed))));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString RemovalText::ofValues(const std::vector<RegistryValueName>& values,
                              const QStringList& keysAlong)
{
    if (keysAlong.isEmpty())
        return namesOf(values);
    QStringList keys;
    for (const QString& key : keysAlong)
        keys.append(RegistryPath::shown(key));
    return namesOf(values) + QStringLiteral("\n\n") +
           RemovalTexts::tr("Keys of the same name go with everything in them:") +
           QLatin1Char('\n') + keys.join(QLatin1Char('\n'));
}

QString RemovalText::ofKey(const QString& path, const RegistryCountJob& count)
{
    const QLocale locale;
    QString text =
        RemovalTexts::tr("Keys below it that go with it: %1. Values: %2.")
            .arg(locale.toString(count.keys().size() - 1), locale.toString(count.values()));
    if (rawRegistryEntry(path).isNull())
        return text;
    return text + QLatin1Char('\n') +
           RemovalTexts::tr("The value \"%1\" of %2 goes with it.")
               .arg(RegistryPath::name(path), RegistryPath::shown(RegistryPath::parent(path)));
}

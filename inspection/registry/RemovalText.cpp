#include "inspection/registry/RemovalText.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QCoreApplication>
#include <QLocale>

#include <functional>

namespace {

struct RemovalTexts
{
    Q_DECLARE_TR_FUNCTIONS(RemovalText)
};

constexpr int mostNamed = 10;

// A line for each of the first ones, which `text` makes, and how many more there are.
template <typename Items, typename Text>
QString firstOf(const Items& items, const Text& text)
{
    QStringList lines;
    for (auto item = items.begin(); item != items.end() && lines.size() < mostNamed; ++item)
        lines.append(text(*item));
    const qlonglong more = static_cast<qlonglong>(items.size()) - lines.size();
    if (more > 0)
        lines.append(RemovalTexts::tr("and %1 more").arg(QLocale().toString(more)));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString RemovalText::ofValues(const std::vector<RegistryValueName>& values,
                              const QStringList& keysAlong)
{
    QString names = firstOf(values, std::mem_fn(&RegistryValueName::name));
    if (keysAlong.isEmpty())
        return names;
    return names + QStringLiteral("\n\n") +
           RemovalTexts::tr("Keys of the same name go with everything in them:") +
           QLatin1Char('\n') + firstOf(keysAlong, RegistryPath::shown);
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

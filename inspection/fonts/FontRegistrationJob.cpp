#include "inspection/fonts/FontRegistrationJob.h"

#include "inspection/fonts/CharacterSets.h"

#include <algorithm>

namespace {

struct Weight
{
    int qt;
    int windows;
};

// Each row is one weight, as a font database counts it (0 to 99) and as a record does.
constexpr Weight weights[] = {
    {QFont::Thin, 100},   {QFont::ExtraLight, 200}, {QFont::Light, 300},
    {QFont::Normal, 400}, {QFont::Medium, 500},     {QFont::DemiBold, 600},
    {QFont::Bold, 700},   {QFont::ExtraBold, 800},  {QFont::Black, 900},
};

int windowsWeight(int weight)
{
    const Weight* nearest = std::begin(weights);
    for (const Weight& each : weights) {
        if (std::abs(each.qt - weight) < std::abs(nearest->qt - weight))
            nearest = &each;
    }
    return nearest->windows;
}

} // namespace

FontRegistrationJob::FontRegistrationJob() : m_families(m_database.families()) {}

bool FontRegistrationJob::step()
{
    if (m_families.isEmpty())
        return false;
    const QString family = m_families.takeFirst();
    if (!FontCatalogue::fits(family))
        m_tooLong << family;
    else if (FontCatalogue::records(family).empty())
        registerFamily(family);
    return !m_families.isEmpty();
}

QString FontRegistrationJob::progress() const
{
    return tr("Families left: %L1").arg(m_families.size());
}

QString FontRegistrationJob::summary() const
{
    if (m_registeredFamilies == 0)
        return tr("All families were registered before.");
    return tr("Registered records: %L1. Families: %L2.")
        .arg(m_registeredRecords)
        .arg(m_registeredFamilies);
}

QString FontRegistrationJob::omissions() const
{
    if (m_tooLong.isEmpty())
        return {};
    return tr("Left out, because their names do not fit a record: %1.")
        .arg(m_tooLong.join(QStringLiteral(", ")));
}

// The system tells one name only: it is the global and the local one.
void FontRegistrationJob::registerFamily(const QString& family)
{
    const std::vector<BYTE> sets = charSets(family);
    const QStringList styles = m_database.styles(family);
    for (const QString& style : styles) {
        for (const BYTE set : sets) {
            FontCatalogue::add(family, {family,
                                        family + QLatin1Char(' ') + style,
                                        style,
                                        {},
                                        set,
                                        windowsWeight(m_database.weight(family, style)),
                                        m_database.italic(family, style)});
            ++m_registeredRecords;
        }
    }
    ++m_registeredFamilies;
}

std::vector<BYTE> FontRegistrationJob::charSets(const QString& family) const
{
    std::vector<BYTE> sets;
    const auto systems = m_database.writingSystems(family);
    for (const QFontDatabase::WritingSystem system : systems) {
        if (const auto set = CharacterSets::fromWritingSystem(system))
            sets.push_back(*set);
    }
    if (sets.empty())
        sets.push_back(DEFAULT_CHARSET);
    return sets;
}

#include "inspection/registry/RegistrySearchJob.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QLocale>

RegistrySearchJob::RegistrySearchJob(const QString& text, const QString& path, bool inNames,
                                     bool inData)
    : m_text(text),
      m_digits(text.toLower().toLatin1()),
      m_inNames(inNames),
      m_inData(inData),
      m_walk(path)
{
}

bool RegistrySearchJob::step()
{
    if (isFull())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: lookAtKey(); return true;
    case RegistryWalk::Step::Value: lookAtValue(); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

QString RegistrySearchJob::progress() const
{
    const QLocale locale;
    return tr("Values: %1. Found: %2.")
        .arg(locale.toString(m_walk.values()),
             locale.toString(static_cast<qulonglong>(m_hits.size())));
}

void RegistrySearchJob::lookAtKey()
{
    if (m_inNames && matches(RegistryPath::name(m_walk.path())))
        m_hits.push_back({m_walk.path(), {}, {}});
}

bool RegistrySearchJob::matches(const RegistryReading& reading) const
{
    switch (reading.type) {
    case REG_SZ: return matches(registryText(reading.data));
    case REG_BINARY: return matchesBytes(reading.data);
    default: return matches(RegistryFormat::data(reading.type, reading.data));
    }
}

// Without blanks, digits that begin in the middle of a byte are no match.
bool RegistrySearchJob::matchesBytes(const QByteArray& data) const
{
    if (data.toHex(' ').contains(m_digits))
        return true;
    const QByteArray digits = data.toHex();
    int at = digits.indexOf(m_digits);
    while (at >= 0 && at % 2 != 0)
        at = digits.indexOf(m_digits, at + 1);
    return at >= 0;
}

void RegistrySearchJob::lookAtValue()
{
    const RegistryReading reading = m_walk.path().isEmpty()
                                        ? readAtRegistryRoot(m_walk.key(), m_walk.name())
                                        : m_walk.key().read(m_walk.name());
    const QString data =
        reading.readable ? RegistryFormat::data(reading.type, reading.data) : QString();
    const bool found =
        (m_inNames && matches(m_walk.name())) || (m_inData && reading.readable && matches(reading));
    if (found)
        m_hits.push_back({m_walk.path(), m_walk.name(), data});
}

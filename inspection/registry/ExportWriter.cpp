#include "inspection/registry/ExportWriter.h"

#include "inspection/registry/ReadingRemark.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QRegularExpression>

namespace {

bool hasLineEnd(const QString& name)
{
    return name.contains(QLatin1Char('\n')) || name.contains(QLatin1Char('\r'));
}

// Why a reader would find another key than this one, or an empty text.
QString keyProblem(const QString& path)
{
    static const QRegularExpression comment(QStringLiteral("\\]\\s*;"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    if (hasLineEnd(path))
        return ExportWriter::tr("the format knows no line ends in names of keys");
    if (path.contains(QLatin1Char('\\')))
        return ExportWriter::tr("a \"\\\" in it separates keys");
    if (path.contains(comment))
        return ExportWriter::tr("a part of its name would be taken for a comment");
    return {};
}

} // namespace

ExportWriter::ExportWriter(QIODevice& device, RegFileWriter::Encoding encoding)
    : m_writer(device, encoding)
{
}

// The values of a key that is left out are left out with it: without its line they would go into
// another key.
void ExportWriter::key(const QString& path)
{
    m_path = path;
    const QString problem = keyProblem(path);
    m_underKey = problem.isEmpty();
    if (m_underKey)
        m_writer.key(RegistryPath::shown(path));
    else
        leaveOut(RegistryPath::shown(path), problem);
}

void ExportWriter::value(const RegistryKey& key, const QString& name)
{
    if (!m_underKey)
        return;
    const RegistryReading reading = key.read(name);
    const QVariant entry = rawRegistryEntry(RegistryPath::join(m_path, name));
    if (m_path.isEmpty())
        leaveOut(name, tr("it is listed under the root, but cannot be asked for there"));
    else if (!reading.readable)
        leaveOut(name, readingRemark(reading, entry));
    else if (hasLineEnd(name))
        leaveOut(name, tr("the format knows no line ends in names"));
    else
        write(name, reading);
}

void ExportWriter::write(const QString& name, const RegistryReading& reading)
{
    ++m_values;
    if (reading.type == REG_SZ)
        m_writer.text(name, registryText(reading.data));
    else if (reading.type == REG_DWORD)
        m_writer.dword(name, static_cast<quint32>(RegistryFormat::number(reading.data)));
    else
        m_writer.bytes(name, reading.type, reading.data);
}

void ExportWriter::leaveOut(const QString& name, const QString& why)
{
    ++m_leftOut;
    m_writer.comment(tr("left out: \"%1\": %2").arg(name, why));
}

#include "inspection/registry/RegistryExportJob.h"

#include "inspection/registry/ReadingRemark.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QLocale>
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
        return RegistryExportJob::tr("the format knows no line ends in names of keys");
    if (path.contains(QLatin1Char('\\')))
        return RegistryExportJob::tr("a \"\\\" in it separates keys");
    if (path.contains(comment))
        return RegistryExportJob::tr("a part of its name would be taken for a comment");
    return {};
}

} // namespace

RegistryExportJob::RegistryExportJob(const QString& path, const QString& file,
                                     RegFileWriter::Encoding encoding)
    : m_file(file),
      m_open(m_file.open(QIODevice::WriteOnly)),
      m_writer(m_file, encoding),
      m_walk(path)
{
}

QString RegistryExportJob::error() const
{
    return m_open && m_writer.isGood() ? QString() : m_file.errorString();
}

bool RegistryExportJob::step()
{
    if (!m_open || !m_writer.isGood())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: writeKey(); return true;
    case RegistryWalk::Step::Value: writeValue(); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

QString RegistryExportJob::progress() const
{
    return QLocale().toString(m_values);
}

bool RegistryExportJob::commit()
{
    return m_open && m_writer.isGood() && m_file.commit();
}

// Its values are left out with it: without its line they would go into another key.
void RegistryExportJob::writeKey()
{
    const QString path = m_walk.path();
    const QString problem = keyProblem(path);
    m_underKey = problem.isEmpty();
    if (m_underKey)
        m_writer.key(RegistryPath::shown(path));
    else
        leaveOut(RegistryPath::shown(path), problem);
}

void RegistryExportJob::writeValue()
{
    if (!m_underKey)
        return;
    const QString name = m_walk.name();
    const RegistryReading reading = m_walk.key().read(name);
    const QVariant entry = rawRegistryEntry(RegistryPath::join(m_walk.path(), name));
    if (m_walk.path().isEmpty())
        leaveOut(name, tr("it is listed under the root, but cannot be asked for there"));
    else if (!reading.readable)
        leaveOut(name, readingRemark(reading, entry));
    else if (hasLineEnd(name))
        leaveOut(name, tr("the format knows no line ends in names"));
    else
        write(name, reading);
}

void RegistryExportJob::write(const QString& name, const RegistryReading& reading)
{
    ++m_values;
    if (reading.type == REG_SZ)
        m_writer.text(name, registryText(reading.data));
    else if (reading.type == REG_DWORD)
        m_writer.dword(name, static_cast<quint32>(RegistryFormat::number(reading.data)));
    else
        m_writer.bytes(name, reading.type, reading.data);
}

void RegistryExportJob::leaveOut(const QString& name, const QString& why)
{
    ++m_leftOut;
    m_writer.comment(tr("left out: \"%1\": %2").arg(name, why));
}

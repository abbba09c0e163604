#include "app/pages/registry/RegistryExport.h"

#include "app/pages/registry/RegistryFormat.h"
#include "app/pages/registry/RegistryListing.h"
#include "app/pages/registry/RegistryPath.h"
#include "app/pages/registry/StoredText.h"

namespace {

bool hasLineEnd(const QString& name)
{
    return name.contains(QLatin1Char('\n')) || name.contains(QLatin1Char('\r'));
}

} // namespace

RegistryExport::RegistryExport(const QString& path, const QString& file,
                               RegFileWriter::Encoding encoding)
    : m_file(file),
      m_open(m_file.open(QIODevice::WriteOnly)),
      m_writer(m_file, encoding),
      m_walk(path)
{
}

QString RegistryExport::error() const
{
    return m_open && m_writer.isGood() ? QString() : m_file.errorString();
}

bool RegistryExport::step()
{
    if (!m_open || !m_writer.isGood())
        return false;
    switch (m_walk.next()) {
    case RegistryWalk::Step::Key: m_writer.key(RegistryPath::shown(m_walk.path())); return true;
    case RegistryWalk::Step::Value: writeValue(); return true;
    case RegistryWalk::Step::End: break;
    }
    return false;
}

bool RegistryExport::commit()
{
    return m_open && m_writer.isGood() && m_file.commit();
}

void RegistryExport::writeValue()
{
    const QString name = m_walk.name();
    const RegistryReading reading = m_walk.key().read(name);
    const QVariant entry = rawRegistryEntry(RegistryPath::join(m_walk.path(), name));
    if (m_walk.path().isEmpty())
        leaveOut(name, tr("it is listed under the root, but cannot be asked for there"));
    else if (!reading.readable)
        leaveOut(name, StoredText(entry).whyUnreadable());
    else if (hasLineEnd(name))
        leaveOut(name, tr("the format knows no line ends in names"));
    else
        write(name, reading);
}

void RegistryExport::write(const QString& name, const RegistryReading& reading)
{
    ++m_values;
    if (reading.type == REG_SZ)
        m_writer.text(name, registryText(reading.data));
    else if (reading.type == REG_DWORD)
        m_writer.dword(name, static_cast<quint32>(RegistryFormat::number(reading.data)));
    else
        m_writer.bytes(name, reading.type, reading.data);
}

void RegistryExport::leaveOut(const QString& name, const QString& why)
{
    ++m_leftOut;
    m_writer.comment(tr("left out: \"%1\": %2").arg(name, why));
}

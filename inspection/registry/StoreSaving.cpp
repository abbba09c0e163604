#include "inspection/registry/StoreSaving.h"

#include "inspection/registry/RawStore.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

QString placeOf(const QFileInfo& file)
{
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

} // namespace

StoreSaving::StoreSaving()
    : m_file(placeOf(QFileInfo(RawStore::fileName()))),
      m_former(m_file, "before"),
      m_before(FileStamp::of(m_file))
{
}

bool StoreSaving::hasWritten() const
{
    return FileStamp::of(m_file) != m_before;
}

// Under another name the file is parsed anew. What another program has added since may be there.
bool StoreSaving::isWhole() const
{
    const SecondName name(m_file, "check");
    const auto saved = RawStore::opened(name.path());
    const RawStore store({}, RawStore::Reach::OwnFile);
    const QStringList entries = store.allEntries();
    for (const QString& entry : entries) {
        if (!saved->contains(entry) || saved->value(entry) != store.value(entry))
            return false;
    }
    return true;
}

void StoreSaving::undo() const
{
    if (hadFile())
        m_former.putBack();
    else
        QFile::remove(m_file);
}

bool saveStore()
{
    const StoreSaving saving;
    if (!RawStore::save())
        return false;
    if (!QFileInfo::exists(saving.file()) || saving.isWhole())
        return true;
    saving.undo();
    return false;
}

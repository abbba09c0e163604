#include "inspection/registry/StoreSaving.h"

#include "inspection/registry/RawStore.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cstdio>
#include <unistd.h>

namespace {

// Another name for a file, which takes no room on the disk, as long as it lives. Where the file
// system has no second names it is a copy.
class SecondName
{
public:
    SecondName(const QString& file, const char* purpose)
        : m_file(QFile::encodeName(file)),
          m_name(m_file + '.' + purpose + '-' +
                 QByteArray::number(QCoreApplication::applicationPid())),
          m_isThere(isMade())
    {
    }
    ~SecondName()
    {
        if (m_isThere)
            unlink(m_name.constData());
    }

    SecondName(const SecondName&) = delete;
    SecondName& operator=(const SecondName&) = delete;

    QString path() const { return QFile::decodeName(m_isThere ? m_name : m_file); }
    // Makes it the file again that has the first name.
    void putBack() const
    {
        if (m_isThere)
            std::rename(m_name.constData(), m_file.constData());
    }

private:
    bool isMade() const
    {
        unlink(m_name.constData()); // of an earlier process that was killed
        return link(m_file.constData(), m_name.constData()) == 0 ||
               QFile::copy(QFile::decodeName(m_file), QFile::decodeName(m_name));
    }

    QByteArray m_file;
    QByteArray m_name;
    bool m_isThere;
};

// Under another name the file is parsed anew. What another program has added since may be there.
bool isWhole(const QString& file)
{
    const SecondName name(file, "check");
    const auto saved = RawStore::opened(name.path());
    const RawStore store({}, RawStore::Reach::OwnFile);
    const QStringList entries = store.allEntries();
    for (const QString& entry : entries) {
        if (!saved->contains(entry) || saved->value(entry) != store.value(entry))
            return false;
    }
    return true;
}

} // namespace

bool saveStore()
{
    const QFileInfo info(RawStore::fileName());
    const bool wasThere = info.exists();
    const QString file = wasThere ? info.canonicalFilePath() : info.absoluteFilePath();
    const SecondName former(file, "before");
    if (!RawStore::save())
        return false;
    if (!QFileInfo::exists(file) || isWhole(file))
        return true;
    if (wasThere)
        former.putBack();
    else
        QFile::remove(file);
    return false;
}

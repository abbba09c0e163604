#include "inspection/registry/StoreBackupJob.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreFault.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint64 pieceSize = qint64{256} * 1024;
constexpr int mostDigits = 9; // an int holds them

} // namespace

QString StoreBackupJob::nextFile()
{
    const QFileInfo store(RawStore::fileName());
    if (!RawStore::exists() || !store.isFile() || !storeFault().isEmpty())
        return {};
    const QString stem = store.completeBaseName() + QLatin1String(".backup-");
    const QString suffix = store.suffix().isEmpty() ? QString() : QLatin1Char('.') + store.suffix();
    int highest = 0;
    const QStringList files = store.dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& file : files) {
        const int digits = file.size() - stem.size() - suffix.size();
        const bool isNumber = digits > 0 && digits <= mostDigits;
        if (isNumber && file.startsWith(stem) && file.endsWith(suffix))
            highest = qMax(highest, file.midRef(stem.size(), digits).toInt()); // 0: no number
    }
    return store.dir().filePath(stem + QString::number(highest + 1) + suffix);
}

// A file that has come between is not written over.
StoreBackupJob::StoreBackupJob() : m_store(RawStore::fileName()), m_copy(nextFile())
{
    if (!m_store.open(QIODevice::ReadOnly))
        fail(m_store);
    else if (!m_copy.open(QIODevice::WriteOnly | QIODevice::NewOnly) ||
             !m_copy.setPermissions(m_store.permissions()))
        fail(m_copy);
}

StoreBackupJob::~StoreBackupJob()
{
    if (m_copy.isOpen() && !m_isComplete)
        m_copy.remove();
}

bool StoreBackupJob::step()
{
    if (!m_error.isEmpty() || m_isComplete)
        return false;
    copyPiece();
    return m_error.isEmpty() && !m_isComplete;
}

void StoreBackupJob::copyPiece()
{
    const QByteArray piece = m_store.read(pieceSize);
    if (m_store.error() != QFileDevice::NoError)
        fail(m_store);
    else if (m_copy.write(piece) != piece.size() || !m_copy.flush())
        fail(m_copy);
    else
        m_isComplete = piece.isEmpty();
}

#include "inspection/profiles/ProfileDryRun.h"

#include "inspection/profiles/ProfileBytes.h"

#include <QFile>

#include <new>

using namespace std::chrono_literals;

namespace {

// Why it could not be made; empty where it has been. Only the writing after a short one is told
// why.
QString makeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    bool isGoingOn = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    for (qint64 written = 0; isGoingOn && written < bytes.size();) {
        const qint64 size = file.write(bytes.constData() + written, bytes.size() - written);
        isGoingOn = size > 0;
        written += size;
    }
    return isGoingOn ? QString() : file.errorString();
}

} // namespace

ProfileDryRun::ProfileDryRun(const QString& file, const ProfileChange& change)
    : m_file(file),
      m_change(change),
      m_folder(std::make_shared<QTemporaryDir>()),
      m_writing(writtenFile(), change, ProfileDocument(file).isLarge())
{
}

ProfileDryRun::~ProfileDryRun() = default;

QString ProfileDryRun::formerFile() const
{
    return m_folder->filePath(QStringLiteral("former.ini"));
}

QString ProfileDryRun::writtenFile() const
{
    return m_folder->filePath(QStringLiteral("written.ini"));
}

bool ProfileDryRun::step()
{
    try {
        return stepTrial();
    } catch (const std::bad_alloc&) {
        m_isTooLarge = true;
        return false;
    }
}

bool ProfileDryRun::stepTrial()
{
    switch (m_stage++) {
    case 0: m_bytes = ProfileBytes::of(m_file); return true;
    case 1: return copyTo(formerFile());
    case 2: return copyTo(writtenFile());
    default: return tryOut();
    }
}

bool ProfileDryRun::tryOut()
{
    if (!m_comparison && m_writing.step())
        return true;
    if (!isReadBack()) {
        checkRoom();
        return false;
    }
    if (m_comparison)
        takeDifference();
    else
        compare();
    return !m_difference;
}

bool ProfileDryRun::copyTo(const QString& path)
{
    m_copyFault = m_bytes ? makeFile(path, *m_bytes) : QString();
    return m_copyFault.isEmpty();
}

// The families do not tell a full disk from a value that they cannot keep.
void ProfileDryRun::checkRoom()
{
    constexpr int growth = 4096; // bytes, more than one change adds as a rule
    const int size = m_bytes ? m_bytes->size() : 0;
    const int changed = m_change.section.size() + m_change.key.size() + m_change.value.size();
    const QString path = m_folder->filePath(QStringLiteral("room"));
    m_copyFault = makeFile(path, QByteArray(size + changed + growth, '\0'));
    QFile::remove(path);
}

// Files of megabytes take longer than a step may.
void ProfileDryRun::compare()
{
    m_comparison = std::make_unique<Computation<ProfileDifference>>(
        [folder = m_folder, former = formerFile(), written = writtenFile(), change = m_change] {
            return ProfileDifference(former, written, change);
        });
}

void ProfileDryRun::takeDifference()
{
    if (m_comparison->isDone(4ms))
        m_difference = std::make_shared<const ProfileDifference>(m_comparison->take());
}

// The narrow family answers an empty text for a missing value too.
QString ProfileDryRun::former() const
{
    return m_difference->hadEntry() ? m_writing.former() : QString();
}

bool ProfileDryRun::isReadAlready() const
{
    const bool isFound = m_change.action == ProfileChange::Action::Set && !former().isNull();
    return (isFound && former() == m_change.value) || m_difference->lines().hunks().empty();
}

#include "inspection/profiles/ProfileDryRun.h"

#include "inspection/profiles/ProfileBytes.h"

#include <QFile>

#include <new>

using namespace std::chrono_literals;

namespace {

bool makeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
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
    if (!isReadBack())
        return false;
    if (m_comparison)
        takeDifference();
    else
        compare();
    return !m_difference;
}

bool ProfileDryRun::copyTo(const QString& path) const
{
    return !m_bytes || makeFile(path, *m_bytes);
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

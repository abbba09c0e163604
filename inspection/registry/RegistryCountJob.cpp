#include "inspection/registry/RegistryCountJob.h"

#include <QLocale>

RegistryCountJob::RegistryCountJob(const QString& path) : m_walk(path) {}

bool RegistryCountJob::step()
{
    const RegistryWalk::Step what = m_walk.next();
    if (what == RegistryWalk::Step::Key)
        m_keys.append(m_walk.path());
    return what != RegistryWalk::Step::End;
}

QString RegistryCountJob::progress() const
{
    return QLocale().toString(values());
}

#include "inspection/registry/StoreOpeningJob.h"

#include "inspection/registry/RawStore.h"
#include "platform/registry/StoreSections.h"

StoreOpeningJob::StoreOpeningJob()
{
    if (RawStore::exists())
        m_sections = storeSections(RawStore::fileName());
}

bool StoreOpeningJob::step()
{
    if (m_at == m_sections.size())
        return false;
    static_cast<void>(RawStore().contains(nameInSection(m_sections.at(m_at++))));
    return true;
}

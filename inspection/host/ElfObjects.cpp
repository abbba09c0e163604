#include "inspection/host/ElfObjects.h"

std::shared_ptr<const ElfObject> ElfObjects::at(const QString& path)
{
    std::shared_ptr<const ElfObject>& object = m_read[path];
    if (!object)
        object = readElfObject(path);
    return object;
}

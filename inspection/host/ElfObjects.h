#pragma once

#include "inspection/host/ElfObject.h"

/// Libraries that have been read, each once: many are needed by most others.
class ElfObjects
{
public:
    /// The library of a file, read when it is first asked for. Never null.
    std::shared_ptr<const ElfObject> at(const QString& path);

private:
    QHash<QString, std::shared_ptr<const ElfObject>> m_read;
};

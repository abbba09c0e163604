#pragma once

#include "platform/IPlatformServices.h"

#include <vector>

/// A graphics handle that the service knows.
struct GraphicsHandle
{
    int value;
    /// What `fromHandle` gives: an object's address, or a brush's colour.
    void* object;

    IPlatformResourceManager::ObjType type() const
    {
        return static_cast<IPlatformResourceManager::ObjType>(value >> 16);
    }
};

/// Finds all live graphics handles piece by piece. The service has no list of them, so it is asked
/// for every number of every type. Where it answers null a handle may still be alive: a brush of
/// colour 0 cannot be told from a free number.
class HandleScan
{
public:
    /// How many numbers are to be asked for.
    static constexpr int total = 3 * 0xFFFF;

    /// One piece; false when all numbers have been asked for.
    bool step();

    int asked() const { return m_asked; }
    const std::vector<GraphicsHandle>& found() const { return m_found; }

private:
    int m_asked = 0;
    std::vector<GraphicsHandle> m_found;
};

#include "platform/files/LiveSearches.h"

#include <utility>

LiveSearches& LiveSearches::ofProcess()
{
    static LiveSearches& searches = *std::make_unique<LiveSearches>().release();
    return searches;
}

void* LiveSearches::start(FileSearch search)
{
    auto started = std::make_unique<FileSearch>(std::move(search));
    void* handle = started.get();
    m_searches.emplace(handle, std::move(started));
    return handle;
}

FileSearch* LiveSearches::find(void* handle) const
{
    const auto found = m_searches.find(handle);
    return found == m_searches.end() ? nullptr : found->second.get();
}

bool LiveSearches::end(void* handle)
{
    return m_searches.erase(handle) > 0;
}

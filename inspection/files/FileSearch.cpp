#include "inspection/files/FileSearch.h"

#include "platform/PlatformServicesImp.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

// The service writes 0 to the upper words of the times: with this value in it a time is untouched.
constexpr DWORD unwritten = 0xFFFFFFFF;

quint64 number(const FILETIME& time)
{
    return quint64{time.dwHighDateTime} << 32U | time.dwLowDateTime;
}

auto fields(const FoundDetails& details)
{
    return std::tuple(details.size, number(details.creation), number(details.lastAccess),
                      number(details.lastWrite));
}

} // namespace

bool operator==(const FoundDetails& a, const FoundDetails& b)
{
    return fields(a) == fields(b);
}

bool operator==(const FoundEntry& a, const FoundEntry& b)
{
    return a.name == b.name && a.attributes == b.attributes && a.details == b.details;
}

FileSearch::~FileSearch()
{
    close();
}

std::optional<FoundEntry> FileSearch::first(const QString& pattern)
{
    close();
    markUnwritten();
    m_handle = g_PlatformServices.directoryManager()->findFirstFile(pattern.toStdWString().c_str(),
                                                                    &m_record);
    if (m_handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    return entry();
}

std::optional<FoundEntry> FileSearch::next()
{
    markUnwritten();
    if (g_PlatformServices.directoryManager()->findNextFile(m_handle, &m_record) == 0)
        return std::nullopt;
    return entry();
}

void FileSearch::close()
{
    if (m_handle != INVALID_HANDLE_VALUE)
        g_PlatformServices.directoryManager()->findClose(m_handle);
    m_handle = INVALID_HANDLE_VALUE;
}

void FileSearch::markUnwritten()
{
    m_record.ftLastWriteTime.dwHighDateTime = unwritten;
}

FoundEntry FileSearch::entry() const
{
    // A name may fill the field without a terminator.
    const wchar_t* end =
        std::find(std::begin(m_record.cFileName), std::end(m_record.cFileName), L'\0');
    FoundEntry entry{
        QString::fromWCharArray(m_record.cFileName, static_cast<int>(end - m_record.cFileName)),
        m_record.dwFileAttributes, std::nullopt};
    if (m_record.ftLastWriteTime.dwHighDateTime != unwritten)
        entry.details = FoundDetails{quint64{m_record.nFileSizeHigh} << 32U | m_record.nFileSizeLow,
                                     m_record.ftCreationTime, m_record.ftLastAccessTime,
                                     m_record.ftLastWriteTime};
    return entry;
}

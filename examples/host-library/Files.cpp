#include "Sample.h"

#include "platform/IPlatformServices.h"

// After the first entry, names and attributes are all that is written: the record keeps the size
// and the times of the first.
std::string sample::useFiles(IPlatformServices& services)
{
    IPlatformDirectoryManager& directories = *services.directoryManager();
    WIN32_FIND_DATAW entry{};
    void* search = directories.findFirstFile(L"/ETC/passw?", &entry);
    const bool isCaseIgnored = search != INVALID_HANDLE_VALUE;
    if (isCaseIgnored)
        directories.findClose(search);
    int count = 0;
    search = directories.findFirstFile(L"/etc/PASSW?", &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do
            ++count;
        while (directories.findNextFile(search, &entry));
        directories.findClose(search);
    }
    return "files: " + std::to_string(count) + " found; the case of folders is " +
           (isCaseIgnored ? "ignored" : "kept");
}

#include "tests/platform/files/DirectorySearch.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace {

// What the callers of a service hand in as a search.
class DirectorySearchHandle : public DirectorySearch
{
protected:
    void* start()
    {
        for (const char* name : {"a", "b", "c"})
            tree.file(name);
        return manager.findFirstFile(tree.wide("*").c_str(), data.get());
    }

    QString name() { return QString::fromWCharArray(data->cFileName); }

    // Neither searched in, nor ended, nor read.
    void expectInvalid(void* handle)
    {
        wcscpy(data->cFileName, L"untouched");
        EXPECT_EQ(0, manager.findNextFile(handle, data.get()));
        EXPECT_EQ(0, manager.findClose(handle));
        EXPECT_EQ(QStringLiteral("untouched"), name());
    }
};

TEST_F(DirectorySearchHandle, IsInvalidOnceTheSearchIsClosed)
{
    void* handle = start();
    EXPECT_EQ(1, manager.findClose(handle));
    expectInvalid(handle);
}

TEST_F(DirectorySearchHandle, IsInvalidWhereNoSearchGaveIt)
{
    void* handle = start();
    int local = 0;
    const auto freed = reinterpret_cast<void*>(std::uintptr_t{0x1234});
    const auto besides = static_cast<char*>(handle) + 1;
    for (void* invalid : {static_cast<void*>(nullptr), INVALID_HANDLE_VALUE, freed,
                          static_cast<void*>(&local), static_cast<void*>(besides)})
        expectInvalid(invalid);
    EXPECT_EQ(1, manager.findNextFile(handle, data.get()));
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchHandle, OfOneSearchOutlivesTheOthers)
{
    std::vector<void*> handles;
    for (int i = 0; i < 50; ++i)
        handles.push_back(start());
    for (std::size_t i = 1; i < handles.size(); ++i)
        EXPECT_EQ(1, manager.findClose(handles[i]));
    EXPECT_EQ(1, manager.findNextFile(handles[0], data.get()));
    EXPECT_EQ(QStringLiteral("b"), name());
    EXPECT_EQ(1, manager.findClose(handles[0]));
}

TEST_F(DirectorySearchHandle, IsGoodForEveryManager)
{
    auto other = std::make_unique<PlatformDirectoryManagerImp>();
    manager.findClose(start());
    void* handle = other->findFirstFile(tree.wide("*").c_str(), data.get());
    other.reset();
    EXPECT_EQ(1, manager.findNextFile(handle, data.get()));
    EXPECT_EQ(1, PlatformDirectoryManagerImp().findClose(handle));
}

} // namespace

#include "platform/graphics/GraphicsObjectTable.h"

#include "tests/platform/graphics/CountedImages.h"
#include "tests/platform/graphics/Handles.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <random>
#include <vector>

namespace {

using Entries = std::vector<std::pair<std::int64_t, void*>>;

// The table as an ordered map that is searched from the first number on, in 32-bit arithmetic.
class SearchedTable
{
public:
    std::intptr_t insert(int type, void* object)
    {
        const std::int64_t base = static_cast<std::int32_t>(static_cast<std::uint32_t>(type) << 16);
        for (std::int64_t candidate = base | 1; candidate <= (base | 0xFFFF); ++candidate) {
            const auto next = m_objects.lower_bound(candidate);
            if (next == m_objects.end() || next->first > candidate) {
                m_objects.emplace(candidate, object);
                return candidate;
            }
        }
        return 0;
    }

    void remove(std::intptr_t handle)
    {
        if (handle >= 1)
            m_objects.erase(handle);
    }

    void* find(std::intptr_t handle, int type) const
    {
        const auto entry = m_objects.find(handle);
        if (handle < 1 || handle >> 16 != type || entry == m_objects.end())
            return nullptr;
        return entry->second;
    }

    // Enters without searching, to get a nearly full table quickly.
    void enter(std::intptr_t handle, void* object) { m_objects.emplace(handle, object); }

    // All entries; negative handles come last.
    Entries entries() const
    {
        const auto first = m_objects.lower_bound(0);
        Entries list(first, m_objects.end());
        list.insert(list.end(), m_objects.begin(), first);
        return list;
    }

private:
    std::map<std::int64_t, void*> m_objects;
};

class GraphicsObjectTables : public testing::Test
{
protected:
    void insert(int type)
    {
        void* object = type % 3 == 0 ? nullptr : toHandle(++m_objects);
        const std::intptr_t handle = number(table.insert(type, object));
        ASSERT_EQ(searched.insert(type, object), handle) << "type " << type;
        if (handle != 0)
            handles.push_back(handle);
    }

    void remove(std::intptr_t handle)
    {
        table.remove(toHandle(handle));
        searched.remove(handle);
    }

    void compare(std::intptr_t handle, int type) const
    {
        ASSERT_EQ(searched.find(handle, type), table.find(toHandle(handle), type)) << handle;
    }

    void compareAll() const
    {
        Entries entries;
        table.forEach([&entries](void* handle, void* object) {
            entries.emplace_back(number(handle), object);
        });
        ASSERT_EQ(searched.entries(), entries);
    }

    std::size_t pick(std::size_t count) { return random() % count; }

    GraphicsObjectTable table;
    SearchedTable searched;
    std::vector<std::intptr_t> handles;
    std::mt19937 random{20240229};

private:
    std::intptr_t m_objects = 0;
};

TEST_F(GraphicsObjectTables, GiveTheNumbersThatASearchWouldFind)
{
    constexpr std::array<int, 9> types{2, 4, 4, 1, 7, 0x7FFF, -1, 0x10004, -0x8000};
    for (int round = 0; round < 20000; ++round) {
        const bool grow = (round / 500) % 2 == 0;
        if (handles.empty() || pick(10) < (grow ? 7U : 3U)) {
            insert(types[pick(types.size())]);
        } else {
            const std::size_t index = pick(handles.size());
            remove(handles[index]);
            if (handles[index] > 0)
                handles.erase(handles.begin() + static_cast<std::ptrdiff_t>(index));
        }
        if (!handles.empty())
            compare(handles[pick(handles.size())], types[pick(types.size())]);
        if (round % 1000 == 0)
            compareAll();
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(GraphicsObjectTables, GiveTheNumbersThatASearchWouldFindWhenNearlyFull)
{
    for (std::intptr_t handle = 0x20001; handle <= 0x2FFFF; ++handle) {
        ASSERT_EQ(handle, number(table.insert(2, toHandle(handle))));
        searched.enter(handle, toHandle(handle));
    }
    for (int round = 0; round < 30; ++round) {
        for (std::size_t removals = pick(3); removals > 0; --removals)
            remove(0x20001 + static_cast<std::intptr_t>(pick(0xFFFF)));
        insert(2);
        insert(2);
        compareAll();
        ASSERT_FALSE(HasFatalFailure());
    }
}

struct TypeRow
{
    int type;
    std::intptr_t first;
};

class TypeRange : public testing::TestWithParam<TypeRow>
{
};

// Only the low 16 bits of a type find room in a handle, which is a signed 32-bit number.
INSTANTIATE_TEST_SUITE_P(Types, TypeRange,
                         testing::Values(TypeRow{0, 1}, TypeRow{1, 0x10001}, TypeRow{2, 0x20001},
                                         TypeRow{4, 0x40001}, TypeRow{0x7FFF, 0x7FFF0001},
                                         TypeRow{0x8000, -0x7FFFFFFF}, TypeRow{-1, -0xFFFF},
                                         TypeRow{0xFFFF, -0xFFFF}, TypeRow{0x10000, 1},
                                         TypeRow{0x10004, 0x40001},
                                         TypeRow{std::numeric_limits<int>::max(), -0xFFFF},
                                         TypeRow{std::numeric_limits<int>::min(), 1}));

TEST_P(TypeRange, HasExactly65535Numbers)
{
    GraphicsObjectTable table;
    for (std::intptr_t i = 0; i < 0xFFFF; ++i)
        ASSERT_EQ(GetParam().first + i, number(table.insert(GetParam().type, nullptr)));
    EXPECT_EQ(nullptr, table.insert(GetParam().type, nullptr));
    EXPECT_EQ(nullptr, table.insert(GetParam().type, nullptr));
    EXPECT_EQ(0x30001, number(table.insert(3, nullptr))) << "other types have numbers of their own";
}

TEST(GraphicsObjectTable, NeitherFindsNorRemovesHandlesBelowOne)
{
    GraphicsObjectTable table;
    int object = 0;
    void* negative = table.insert(-1, &object);
    EXPECT_EQ(nullptr, table.find(negative, -1));
    table.remove(negative);
    EXPECT_EQ(-0xFFFE, number(table.insert(-1, &object))) << "the first entry is still there";
}

TEST(GraphicsObjectTable, TakesNoPointerForTheHandleInItsLowerHalf)
{
    GraphicsObjectTable table;
    CountedImages images;
    table.insert(0, images.make());
    EXPECT_EQ(nullptr, table.find(toHandle(0x100000001), 0));
    table.remove(toHandle(0x100000001));
    EXPECT_EQ(0, images.destroyed);
}

TEST(GraphicsObjectTable, HasNothingUnderNumberZero)
{
    GraphicsObjectTable table;
    int object = 0;
    table.insert(2, &object);
    EXPECT_EQ(nullptr, table.find(toHandle(0x20000), 2));
    table.remove(toHandle(0x20000));
    EXPECT_EQ(&object, table.find(toHandle(0x20001), 2));
}

TEST(GraphicsObjectTable, FindsOnlyUnderTheVeryType)
{
    GraphicsObjectTable table;
    int object = 0;
    void* handle = table.insert(4, &object);
    EXPECT_EQ(&object, table.find(handle, 4));
    for (const int type : {0, 2, -4, 0x10004, -0xFFFC})
        EXPECT_EQ(nullptr, table.find(handle, type)) << type;
}

TEST(GraphicsObjectTable, DestroysAnImageOnceWhenItIsRemoved)
{
    GraphicsObjectTable table;
    CountedImages images;
    void* handle = table.insert(0, images.make());
    table.remove(handle);
    EXPECT_EQ(1, images.destroyed);
    table.remove(handle);
    EXPECT_EQ(1, images.destroyed);
}

TEST(GraphicsObjectTable, KeepsNullAsAnEntry)
{
    GraphicsObjectTable table;
    void* handle = table.insert(0, nullptr);
    EXPECT_EQ(nullptr, table.find(handle, 0));
    EXPECT_EQ(2, number(table.insert(0, nullptr)));
    table.remove(handle);
    EXPECT_EQ(1, number(table.insert(0, nullptr)));
}

TEST(GraphicsObjectTable, LeavesARefusedImageToTheCaller)
{
    CountedImages images;
    const std::unique_ptr<QImage> image(images.make());
    GraphicsObjectTable table;
    for (int i = 0; i < 0xFFFF; ++i)
        table.insert(0, nullptr);
    EXPECT_EQ(nullptr, table.insert(0, image.get()));
    EXPECT_EQ(0, images.destroyed);
}

TEST(GraphicsObjectTable, DestroysItsImagesAndNothingElseAtTheEnd)
{
    CountedImages images;
    const std::unique_ptr<QImage> cursor(images.make());
    {
        GraphicsObjectTable table;
        table.insert(0, images.make());
        table.remove(table.insert(0, images.make()));
        table.insert(0, nullptr);
        table.insert(0, images.make());
        table.insert(2, cursor.get());
        table.insert(4, toHandle(0xFFFFFFFF));
        EXPECT_EQ(1, images.destroyed);
    }
    EXPECT_EQ(3, images.destroyed);
}

} // namespace

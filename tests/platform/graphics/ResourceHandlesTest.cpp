#include "platform/PlatformResourceManagerImp.h"

#include "tests/platform/graphics/CountedImages.h"
#include "tests/platform/graphics/Handles.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

using ObjType = IPlatformResourceManager::ObjType;

class ResourceHandles : public testing::Test
{
protected:
    QImage* image(void* handle)
    {
        return static_cast<QImage*>(manager.fromHandle(handle, ObjType::ObjImage));
    }

    PlatformResourceManagerImp manager;
    CountedImages images;
};

TEST_F(ResourceHandles, CountFromOneInEachType)
{
    EXPECT_EQ(1, number(manager.createImage(0, 2, 2)));
    EXPECT_EQ(2, number(manager.createImage(0, 2, 2)));
    EXPECT_EQ(0x40001, number(manager.createBrush(5)));
    EXPECT_EQ(0x40002, number(manager.createBrush(5)));
    EXPECT_EQ(0x20001, number(manager.addObject(ObjType::ObjCursor, this)));
    EXPECT_EQ(0x30001, number(manager.addObject(static_cast<ObjType>(3), this)));
}

TEST_F(ResourceHandles, AreUsedAgainLowestFirst)
{
    for (int i = 0; i < 5; ++i)
        manager.createImage(0, 1, 1);
    manager.removeObject(toHandle(4));
    manager.removeObject(toHandle(1));
    EXPECT_EQ(1, number(manager.createImage(0, 1, 1)));
    EXPECT_EQ(4, number(manager.createImage(0, 1, 1)));
    EXPECT_EQ(6, number(manager.createImage(0, 1, 1)));
}

TEST_F(ResourceHandles, RunOutAfter65535Images)
{
    for (int i = 1; i <= 0xFFFF; ++i)
        ASSERT_EQ(i, number(manager.createImage(0, 1, 1)));
    EXPECT_EQ(nullptr, manager.createImage(0, 1, 1));
    EXPECT_EQ(0x40001, number(manager.createBrush(0)));
    manager.deleteObject(toHandle(0x8000));
    EXPECT_EQ(0x8000, number(manager.createImage(0, 1, 1)));
}

TEST_F(ResourceHandles, RunOutAfter65535Brushes)
{
    for (unsigned int i = 1; i <= 0xFFFF; ++i)
        ASSERT_EQ(0x40000 + i, number(manager.createBrush(i)));
    EXPECT_EQ(nullptr, manager.createBrush(0));
}

TEST_F(ResourceHandles, OfNewImagesNamePremultipliedImagesOfThatSize)
{
    const QImage* created = image(manager.createImage(0, 31, 7));
    ASSERT_NE(nullptr, created);
    EXPECT_EQ(QSize(31, 7), created->size());
    EXPECT_EQ(QImage::Format_ARGB32_Premultiplied, created->format());
}

TEST_F(ResourceHandles, AreGivenToImagesThatCannotBeMadeToo)
{
    constexpr int limit = std::numeric_limits<int>::max();
    for (const QSize& size : {QSize(0, 0), QSize(0, 5), QSize(5, 0), QSize(-1, 5), QSize(5, -1),
                              QSize(limit, limit), QSize(-limit - 1, -limit - 1)}) {
        void* handle = manager.createImage(0, size.width(), size.height());
        ASSERT_NE(nullptr, image(handle));
        EXPECT_TRUE(image(handle)->isNull());
    }
}

TEST_F(ResourceHandles, AreNotGivenToOtherKindsOfImage)
{
    for (const unsigned int kind : {1U, 2U, 4U, 0x10000U, 0x80000000U, ~0U})
        EXPECT_EQ(nullptr, manager.createImage(kind, 4, 4)) << kind;
    EXPECT_EQ(1, number(manager.createImage(0, 4, 4))) << "no number was used up";
}

TEST_F(ResourceHandles, OfBrushesNameTheColourItself)
{
    for (const std::uint32_t color : {0U, 1U, 0x00FF8040U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        void* handle = manager.createBrush(color);
        EXPECT_EQ(std::intptr_t{color}, number(manager.fromHandle(handle, ObjType::ObjBrush)));
    }
}

TEST_F(ResourceHandles, AreNotFoundUnderAnotherType)
{
    void* created = manager.createImage(0, 4, 4);
    void* brush = manager.createBrush(7);
    EXPECT_EQ(nullptr, manager.fromHandle(created, ObjType::ObjCursor));
    EXPECT_EQ(nullptr, manager.fromHandle(created, ObjType::ObjBrush));
    EXPECT_EQ(nullptr, manager.fromHandle(brush, ObjType::ObjImage));
    EXPECT_EQ(nullptr, manager.fromHandle(brush, static_cast<ObjType>(0x10004)));
}

TEST_F(ResourceHandles, AreNotFoundWhenUnknown)
{
    manager.createImage(0, 4, 4);
    for (const std::intptr_t handle :
         {std::intptr_t{0}, std::intptr_t{-1}, std::intptr_t{2}, std::intptr_t{0xFFFF},
          std::intptr_t{0x10000}, std::intptr_t{-0xFFFF}, std::numeric_limits<std::intptr_t>::min(),
          std::intptr_t{0x100000001}})
        EXPECT_EQ(nullptr, manager.fromHandle(toHandle(handle), ObjType::ObjImage)) << handle;
}

TEST_F(ResourceHandles, TakeTheirImageWithThem)
{
    manager.removeObject(manager.addObject(ObjType::ObjImage, images.make()));
    EXPECT_EQ(1, images.destroyed);
    manager.deleteObject(manager.addObject(ObjType::ObjImage, images.make()));
    EXPECT_EQ(2, images.destroyed);
}

TEST_F(ResourceHandles, LeaveObjectsOfOtherTypesAlone)
{
    const std::unique_ptr<QImage> cursor(images.make());
    for (const int type : {1, 2, 3, 4, 0x7FFF})
        manager.deleteObject(manager.addObject(static_cast<ObjType>(type), cursor.get()));
    manager.deleteObject(manager.createBrush(0xFFFFFFFF));
    EXPECT_EQ(0, images.destroyed);
}

TEST_F(ResourceHandles, ThatAreUnknownAreIgnoredOnRemoval)
{
    void* handle = manager.addObject(ObjType::ObjImage, images.make());
    for (const std::intptr_t unknown : {0, -1, 2, 0x10001, 0x20001})
        manager.deleteObject(toHandle(unknown));
    EXPECT_EQ(0, images.destroyed);
    manager.removeObject(handle);
    manager.removeObject(handle);
    manager.deleteObject(handle);
    EXPECT_EQ(1, images.destroyed);
}

TEST_F(ResourceHandles, OfNullObjectsCanBeRemoved)
{
    void* handle = manager.addObject(ObjType::ObjImage, nullptr);
    EXPECT_EQ(1, number(handle));
    EXPECT_EQ(nullptr, manager.fromHandle(handle, ObjType::ObjImage));
    manager.removeObject(handle);
    EXPECT_EQ(1, number(manager.createImage(0, 1, 1)));
}

// In the form of "handle type object", to be compared in one go.
std::vector<std::string> listed(const PlatformResourceManagerImp& manager)
{
    std::vector<std::string> rows;
    for (const GraphicsObject& entry : manager.objects())
        rows.push_back(std::to_string(number(entry.handle)) + ' ' + std::to_string(entry.type) +
                       ' ' + std::to_string(number(entry.object)));
    return rows;
}

TEST_F(ResourceHandles, AreListedWithTypeAndObject)
{
    EXPECT_EQ(std::vector<std::string>(), listed(manager));
    manager.createBrush(0);
    manager.createBrush(0x80000000);
    manager.addObject(ObjType::ObjCursor, toHandle(77));
    manager.addObject(static_cast<ObjType>(-1), toHandle(5));
    manager.addObject(static_cast<ObjType>(0x7FFF), nullptr);
    const std::vector<std::string> rows = {"131073 2 77", "262145 4 0", "262146 4 2147483648",
                                           "2147418113 32767 0", "-65535 -1 5"};
    EXPECT_EQ(rows, listed(manager));
}

TEST_F(ResourceHandles, AreNoLongerListedOnceRemoved)
{
    void* first = manager.createBrush(1);
    manager.createBrush(2);
    manager.deleteObject(first);
    EXPECT_EQ(std::vector<std::string>{"262146 4 2"}, listed(manager));
    manager.createBrush(3);
    EXPECT_EQ((std::vector<std::string>{"262145 4 3", "262146 4 2"}), listed(manager));
}

TEST(ResourceManager, DestroysTheRemainingImagesAtItsEnd)
{
    CountedImages images;
    const std::unique_ptr<QImage> cursor(images.make());
    auto manager = std::make_unique<PlatformResourceManagerImp>();
    manager->addObject(ObjType::ObjImage, images.make());
    manager->addObject(ObjType::ObjImage, images.make());
    manager->addObject(ObjType::ObjCursor, cursor.get());
    manager.reset();
    EXPECT_EQ(2, images.destroyed);
}

TEST(ResourceManager, LoadsNoImage)
{
    PlatformResourceManagerImp manager;
    EXPECT_EQ(nullptr, manager.loadImage(&manager, L"name", 0, 16, 16, 0));
    EXPECT_EQ(nullptr, manager.loadImage(nullptr, nullptr, 2, 0, 0, ~0U));
}

TEST(ResourceManager, ListsNoPrinters)
{
    PlatformResourceManagerImp manager;
    wchar_t name[] = L"printer";
    unsigned char buffer[] = {1, 2, 3, 4};
    unsigned int needed = 11;
    unsigned int returned = 12;
    EXPECT_EQ(0, manager.EnumPrintersW(2, name, 1, buffer, sizeof buffer, &needed, &returned));
    EXPECT_STREQ(L"printer", name);
    EXPECT_EQ(1, buffer[0]);
    EXPECT_EQ(4, buffer[3]);
    EXPECT_EQ(11U, needed);
    EXPECT_EQ(12U, returned);
    EXPECT_EQ(0, manager.EnumPrintersW(0, nullptr, 0, nullptr, 0, nullptr, nullptr));
}

} // namespace

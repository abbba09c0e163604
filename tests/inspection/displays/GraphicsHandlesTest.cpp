#include "inspection/displays/GraphicsHandles.h"

#include "platform/PlatformServicesImp.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

using ObjType = IPlatformResourceManager::ObjType;

PlatformResourceManagerImp& manager()
{
    return dynamic_cast<PlatformResourceManagerImp&>(*g_PlatformServices.resourceManager());
}

class GraphicsHandles : public testing::Test
{
protected:
    ~GraphicsHandles() override
    {
        for (const GraphicsObject& handle : manager().objects())
            manager().removeObject(handle.handle);
    }

    // What is said about the only handle.
    static std::string said()
    {
        const std::vector<GraphicsObject> all = graphicsHandles();
        if (all.size() != 1)
            return std::to_string(all.size()) + " handles";
        return (typeText(all.front()) + ", " + objectText(all.front())).toStdString();
    }
};

TEST_F(GraphicsHandles, OfAnImageTellItsSizeAndFormat)
{
    manager().createImage(0, 12, 34);
    EXPECT_EQ(said(), "0 (image), 12 \u00d7 34, 32 bits a pixel, format 6");
}

TEST_F(GraphicsHandles, OfABrushTellItsColourAlsoWhereThatIsZero)
{
    void* brush = manager().createBrush(0xFFC0FFEE);
    EXPECT_EQ(said(), "4 (brush), colour 0xffc0ffee");
    manager().removeObject(brush);
    manager().createBrush(0);
    EXPECT_EQ(said(), "4 (brush), colour 0x00000000");
}

TEST_F(GraphicsHandles, OfACursorImageTellItsAddress)
{
    manager().addObject(ObjType::ObjCursor, reinterpret_cast<void*>(0xABC0));
    EXPECT_EQ(said(), "2 (cursor image), at 0xabc0");
}

TEST_F(GraphicsHandles, OfATypeWithoutNameAreListedToo)
{
    manager().addObject(static_cast<ObjType>(3), nullptr);
    EXPECT_EQ(said(), "3 (other), at 0x0");
}

TEST_F(GraphicsHandles, ThatNoOperationAcceptsAreLeftOut)
{
    PlatformResourceManagerImp& service = manager();
    const std::size_t before = service.objects().size();
    service.addObject(static_cast<ObjType>(-1), nullptr);
    EXPECT_EQ(service.objects().size(), before + 1);
    EXPECT_EQ(said(), "0 handles");
}

} // namespace

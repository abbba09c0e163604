#include "platform/PlatformResourceManagerImp.h"

#include "tests/platform/graphics/Handles.h"
#include "tests/support/CanaryBuffer.h"
#include "tests/support/CanaryRecord.h"

#include <QImage>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace {

using ObjType = IPlatformResourceManager::ObjType;

QImage pattern(int width, int height, QImage::Format format)
{
    QImage image(width, height, format);
    for (int i = 0; i < static_cast<int>(image.sizeInBytes()); ++i)
        image.bits()[i] = static_cast<uchar>(i * 7 + 1);
    return image;
}

class ResourceBitmaps : public testing::Test
{
protected:
    void* enter(const QImage& image)
    {
        return manager.addObject(ObjType::ObjImage, new QImage(image));
    }

    const QImage* image(void* handle)
    {
        return static_cast<const QImage*>(manager.fromHandle(handle, ObjType::ObjImage));
    }

    // Handles under which there are no pixels of an image.
    std::vector<void*> handlesWithoutImage()
    {
        return {nullptr,
                toHandle(-1),
                toHandle(0x7777),
                toHandle(0x100000001),
                manager.createBrush(3),
                manager.addObject(ObjType::ObjCursor, &m_cursor),
                manager.addObject(static_cast<ObjType>(-1), &m_cursor),
                manager.addObject(ObjType::ObjImage, nullptr)};
    }

    PlatformResourceManagerImp manager;

private:
    QImage m_cursor = pattern(4, 4, QImage::Format_ARGB32_Premultiplied);
};

struct FormatRow
{
    QImage::Format format;
    int bytesPerLine;
    WORD planes;
    WORD depth;
};

class BitmapOfFormat : public ResourceBitmaps, public testing::WithParamInterface<FormatRow>
{
};

INSTANTIATE_TEST_SUITE_P(Formats, BitmapOfFormat,
                         testing::Values(FormatRow{QImage::Format_Mono, 4, 1, 1},
                                         FormatRow{QImage::Format_Indexed8, 20, 8, 8},
                                         FormatRow{QImage::Format_RGB32, 68, 24, 32},
                                         FormatRow{QImage::Format_ARGB32, 68, 32, 32},
                                         FormatRow{QImage::Format_ARGB32_Premultiplied, 68, 32, 32},
                                         FormatRow{QImage::Format_RGB16, 36, 16, 16},
                                         FormatRow{QImage::Format_RGB888, 52, 24, 24},
                                         FormatRow{QImage::Format_RGBA64, 136, 64, 64}));

TEST_P(BitmapOfFormat, IsDescribedInQtsTerms)
{
    void* handle = enter(pattern(17, 5, GetParam().format));
    CanaryRecord<BITMAP> expected;
    expected->bmType = GetParam().format;
    expected->bmWidth = 17;
    expected->bmHeight = 5;
    expected->bmWidthBytes = GetParam().bytesPerLine;
    expected->bmPlanes = GetParam().planes;
    expected->bmBitsPixel = GetParam().depth;
    expected->bmBits = const_cast<uchar*>(image(handle)->constBits());
    CanaryRecord<BITMAP> record;
    EXPECT_EQ(1, manager.GetBitmap(record.get(), handle));
    record.expect(*expected.get());
}

TEST_F(ResourceBitmaps, HandOutTheMemoryOfASharedImage)
{
    const QImage shared = pattern(8, 8, QImage::Format_ARGB32);
    BITMAP bitmap{};
    EXPECT_EQ(1, manager.GetBitmap(&bitmap, enter(shared)));
    EXPECT_EQ(shared.constBits(), bitmap.bmBits);
}

TEST_F(ResourceBitmaps, HandOutTheMemoryOfAnImageOverConstantPixels)
{
    alignas(4) static constexpr uchar pixels[16] = {1, 2, 3, 4};
    BITMAP bitmap{};
    EXPECT_EQ(1, manager.GetBitmap(&bitmap, enter(QImage(pixels, 2, 2, QImage::Format_ARGB32))));
    EXPECT_EQ(pixels, bitmap.bmBits);
}

TEST_F(ResourceBitmaps, AreDescribedForNullImagesToo)
{
    BITMAP bitmap{9, 9, 9, 9, 9, 9, this};
    EXPECT_EQ(1, manager.GetBitmap(&bitmap, manager.createImage(0, 0, 0)));
    EXPECT_EQ(QImage::Format_Invalid, bitmap.bmType);
    EXPECT_EQ(0, bitmap.bmWidth);
    EXPECT_EQ(0, bitmap.bmHeight);
    EXPECT_EQ(0, bitmap.bmWidthBytes);
    EXPECT_EQ(0, bitmap.bmPlanes);
    EXPECT_EQ(0, bitmap.bmBitsPixel);
    EXPECT_EQ(nullptr, bitmap.bmBits);
}

TEST_F(ResourceBitmaps, AreDescribedUpToTheLastHandle)
{
    for (int i = 1; i < 0xFFFF; ++i)
        manager.addObject(ObjType::ObjImage, nullptr);
    void* handle = manager.createImage(0, 3, 3);
    ASSERT_EQ(0xFFFF, number(handle));
    BITMAP bitmap{};
    EXPECT_EQ(1, manager.GetBitmap(&bitmap, handle));
    EXPECT_EQ(3, bitmap.bmWidth);
}

TEST_F(ResourceBitmaps, AreNotDescribedWithoutAnImage)
{
    for (void* handle : handlesWithoutImage()) {
        CanaryRecord<BITMAP> record;
        EXPECT_EQ(0, manager.GetBitmap(record.get(), handle));
        record.expectUntouched();
    }
}

TEST_F(ResourceBitmaps, AreNotDescribedToNull)
{
    EXPECT_EQ(0, manager.GetBitmap(nullptr, manager.createImage(0, 2, 2)));
}

TEST_F(ResourceBitmaps, CopyTheirPixelsForTheExactCount)
{
    const QImage source = pattern(17, 5, QImage::Format_RGB888); // lines of 51 bytes, padded to 52
    CanaryBuffer<unsigned char> buffer(300);
    EXPECT_EQ(260, manager.GetBitmapBits(260, buffer.data(), enter(source)));
    buffer.expect(source.constBits(), 260);
}

TEST_F(ResourceBitmaps, CopyNothingForAnyOtherCount)
{
    void* handle = enter(pattern(17, 5, QImage::Format_RGB888));
    for (const unsigned int count : {0U, 1U, 255U, 259U, 261U, 0x80000104U, ~0U}) {
        CanaryBuffer<unsigned char> buffer(300);
        EXPECT_EQ(0, manager.GetBitmapBits(count, buffer.data(), handle)) << count;
        buffer.expectUntouched();
    }
}

TEST_F(ResourceBitmaps, CopyNothingWithoutAnImage)
{
    std::vector<void*> handles = handlesWithoutImage();
    handles.push_back(manager.createImage(0, 0, 0));
    for (void* handle : handles) {
        for (const unsigned int count : {0U, 64U}) {
            CanaryBuffer<unsigned char> buffer(64);
            EXPECT_EQ(0, manager.GetBitmapBits(count, buffer.data(), handle));
            buffer.expectUntouched();
        }
    }
}

TEST_F(ResourceBitmaps, CopyNothingToNull)
{
    EXPECT_EQ(0, manager.GetBitmapBits(64, nullptr, manager.createImage(0, 4, 4)));
}

struct CursorRow
{
    QImage::Format format;
    int width;
    int height;
};

class CursorImage : public testing::TestWithParam<CursorRow>
{
};

// The same size and format, then what would have to be scaled or converted, which never shows.
INSTANTIATE_TEST_SUITE_P(Requests, CursorImage,
                         testing::Values(CursorRow{QImage::Format_RGBA8888, 6, 4},
                                         CursorRow{QImage::Format_RGBA8888, 3, 2},
                                         CursorRow{QImage::Format_RGBA8888, 60, 40},
                                         CursorRow{QImage::Format_RGBA8888, 0, 0},
                                         CursorRow{QImage::Format_RGBA8888, -6, -4},
                                         CursorRow{QImage::Format_ARGB32, 6, 4},
                                         CursorRow{QImage::Format_ARGB32, 12, 8},
                                         CursorRow{QImage::Format_Mono, 6, 4},
                                         CursorRow{QImage::Format_RGBA64, 1, 1}));

TEST_P(CursorImage, IsCopiedAsItIsStored)
{
    PlatformResourceManagerImp manager;
    QImage stored = pattern(6, 4, GetParam().format);
    void* handle = manager.addObject(ObjType::ObjCursor, &stored);
    CanaryBuffer<unsigned char> buffer(256);
    const auto count = static_cast<int>(stored.sizeInBytes());
    EXPECT_EQ(count,
              manager.GetCursorBits(handle, GetParam().width, GetParam().height, buffer.data(), 8));
    buffer.expect(stored.constBits(), static_cast<std::size_t>(count));
}

class CursorBits : public testing::Test
{
protected:
    PlatformResourceManagerImp manager;
    QImage stored = pattern(6, 4, QImage::Format_RGBA8888);
    CanaryBuffer<unsigned char> buffer{256};
};

TEST_F(CursorBits, AreCopiedOnlyForEightBitsPerPixel)
{
    void* handle = manager.addObject(ObjType::ObjCursor, &stored);
    for (const int bits : {0, 1, 7, 9, 24, 32, -8, 0x108})
        EXPECT_EQ(0, manager.GetCursorBits(handle, 6, 4, buffer.data(), bits)) << bits;
    buffer.expectUntouched();
}

TEST_F(CursorBits, AreNotCopiedFromAnythingButACursorImage)
{
    for (void* handle :
         {toHandle(0), toHandle(-1), toHandle(0x20001), manager.createBrush(1),
          manager.createImage(0, 6, 4), manager.addObject(ObjType::ObjCursor, nullptr)})
        EXPECT_EQ(0, manager.GetCursorBits(handle, 6, 4, buffer.data(), 8)) << number(handle);
    buffer.expectUntouched();
}

TEST_F(CursorBits, AreNoneOfANullImage)
{
    QImage null;
    void* handle = manager.addObject(ObjType::ObjCursor, &null);
    EXPECT_EQ(0, manager.GetCursorBits(handle, 6, 4, buffer.data(), 8));
    buffer.expectUntouched();
}

TEST_F(CursorBits, AreNotCopiedToNull)
{
    void* handle = manager.addObject(ObjType::ObjCursor, &stored);
    EXPECT_EQ(0, manager.GetCursorBits(handle, 6, 4, nullptr, 8));
}

// Finds one cursor image of its own, whatever is asked for.
class OverridingManager : public PlatformResourceManagerImp
{
public:
    void* fromHandle(void* handle, ObjType type) override
    {
        askedFor.emplace_back(number(handle), type);
        return &own;
    }

    QImage own = pattern(2, 2, QImage::Format_RGBA8888);
    std::vector<std::pair<std::intptr_t, ObjType>> askedFor;
};

TEST_F(CursorBits, AreThoseOfAnOverride)
{
    OverridingManager overriding;
    EXPECT_EQ(16, overriding.GetCursorBits(toHandle(-5), 2, 2, buffer.data(), 8));
    buffer.expect(overriding.own.constBits(), 16);
    ASSERT_EQ(1U, overriding.askedFor.size());
    EXPECT_EQ(-5, overriding.askedFor[0].first);
    EXPECT_EQ(ObjType::ObjCursor, overriding.askedFor[0].second);
}

TEST_F(CursorBits, AloneGoThroughTheOverride)
{
    OverridingManager overriding;
    BITMAP bitmap{};
    EXPECT_EQ(0, overriding.GetBitmap(&bitmap, toHandle(1)));
    EXPECT_EQ(0, overriding.GetBitmapBits(16, buffer.data(), toHandle(1)));
    EXPECT_TRUE(overriding.askedFor.empty());
}

} // namespace

#pragma once

#include <QImage>

#include <array>

/// Makes images whose destruction is counted.
class CountedImages
{
public:
    /// A new image of one pixel; it belongs to the caller.
    QImage* make()
    {
        return new QImage(m_pixel.data(), 1, 1, QImage::Format_ARGB32, count, &destroyed);
    }

    int destroyed = 0;

private:
    static void count(void* counter) { ++*static_cast<int*>(counter); }

    alignas(4) std::array<uchar, 4> m_pixel{};
};

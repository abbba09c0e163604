#pragma once

#include <QRect>

class QScreen;

/// One more screen for the application while it lives: a real QScreen over a platform screen of the
/// test's own, since the offscreen platform has but one.
class VirtualScreen
{
public:
    explicit VirtualScreen(const QRect& geometry, const QRect& available = QRect(),
                           bool primary = false);
    ~VirtualScreen();

    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    QScreen* screen() const;

private:
    class PlatformScreen;

    PlatformScreen* m_platformScreen; // owned by the application from its addition to its removal
};

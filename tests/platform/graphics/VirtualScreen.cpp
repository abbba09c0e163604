#include "tests/platform/graphics/VirtualScreen.h"

#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

class VirtualScreen::PlatformScreen : public QPlatformScreen
{
public:
    PlatformScreen(const QRect& geometry, const QRect& available)
        : m_geometry(geometry), m_available(available.isNull() ? geometry : available)
    {
    }

    QRect geometry() const override { return m_geometry; }
    QRect availableGeometry() const override { return m_available; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }

private:
    QRect m_geometry;
    QRect m_available;
};

VirtualScreen::VirtualScreen(const QRect& geometry, const QRect& available, bool primary)
    : m_platformScreen(new PlatformScreen(geometry, available))
{
    QWindowSystemInterface::handleScreenAdded(m_platformScreen, primary);
}

VirtualScreen::~VirtualScreen()
{
    QWindowSystemInterface::handleScreenRemoved(m_platformScreen);
}

QScreen* VirtualScreen::screen() const
{
    return m_platformScreen->screen();
}

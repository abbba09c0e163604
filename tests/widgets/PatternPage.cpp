#include "tests/widgets/PatternPage.h"

#include <QPainter>

namespace {

constexpr QRect childArea(10, 8, 30, 20);
constexpr int childOffset = 4; // of a child's number from its page's

QRgb patternColor(int id, int x, int y)
{
    return qRgb(x & 255, y & 255, id * 32 + ((x >> 8) & 3) * 8 + ((y >> 8) & 7));
}

// A pattern that knows nothing of a page, for the child.
class PatternChild : public QWidget
{
public:
    PatternChild(int id, QWidget* parent) : QWidget(parent), m_id(id) {}

    static void paint(QWidget& widget, int id)
    {
        const qreal ratio = widget.devicePixelRatioF();
        QImage image(widget.size() * ratio, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x)
                line[x] = patternColor(id, x, y);
        }
        image.setDevicePixelRatio(ratio);
        QPainter(&widget).drawImage(0, 0, image);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { paint(*this, m_id); }

private:
    int m_id;
};

} // namespace

PatternPage::PatternPage(int id, QWidget* parent)
    : QWidget(parent), m_id(id), m_child(new PatternChild(id + childOffset, this))
{
    m_child->setGeometry(childArea);
}

void PatternPage::paintEvent(QPaintEvent* /*event*/)
{
    PatternChild::paint(*this, m_id);
}

QRgb PatternPage::colorAt(int x, int y) const
{
    const int ratio = qRound(devicePixelRatioF());
    if (!QRect(QPoint(), size() * ratio).contains(x, y))
        return 0;
    const QRect child(childArea.topLeft() * ratio, childArea.size() * ratio);
    if (child.contains(x, y))
        return patternColor(m_id + childOffset, x - child.x(), y - child.y());
    return patternColor(m_id, x, y);
}

std::string firstDifference(const QImage& picture, const std::function<QRgb(int, int)>& expected)
{
    const QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < plain.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        for (int x = 0; x < plain.width(); ++x) {
            const QRgb wanted = expected(x, y);
            if (line[x] != wanted)
                return QStringLiteral("(%1, %2) is %3 and not %4")
                    .arg(x)
                    .arg(y)
                    .arg(line[x], 8, 16)
                    .arg(wanted, 8, 16)
                    .toStdString();
        }
    }
    return {};
}

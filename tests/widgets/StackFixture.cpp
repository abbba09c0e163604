#include "tests/widgets/StackFixture.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QVariantAnimation>

#include <stdexcept>

void turn()
{
    QCoreApplication::processEvents();
}

namespace {

// Learns who ends a slide: the end shows the leaving page once more.
class SenderProbe : public QObject
{
public:
    explicit SenderProbe(ProbedStack& stack) : m_stack(stack)
    {
        stack.currentWidget()->installEventFilter(this);
    }

    QPointer<QObject> found;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::ShowToParent && !found)
            found = m_stack.sender();
        return false;
    }

private:
    ProbedStack& m_stack;
};

} // namespace

QVariantAnimation* slideToTheEnd(ProbedStack& stack)
{
    const SenderProbe probe(stack);
    stack.next();
    if (waitFor([&probe] { return !probe.found.isNull(); }))
        if (auto* animation = qobject_cast<QVariantAnimation*>(probe.found))
            return animation;
    throw std::runtime_error("no animation has ended a slide");
}

QVariantAnimation* animationOf(ProbedStack& stack)
{
    stack.setDuration(0);
    QVariantAnimation* animation = slideToTheEnd(stack);
    stack.setCurrentIndex(0);
    stack.setDuration(600);
    return animation;
}

StackFixture::StackFixture()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(background));
    stack.setPalette(palette);
    for (int id = 0; id < 3; ++id)
        stack.addWidget(new PatternPage(id));
    stack.resize(200, 120);
    stack.show();
    turn();
}

PatternPage& StackFixture::page(int index) const
{
    return *qobject_cast<PatternPage*>(stack.widget(index));
}

std::function<QRgb(int, int)> StackFixture::slideFrame(int leaving, int arriving, bool fromLeft,
                                                       int offset) const
{
    const int ratio = qRound(stack.devicePixelRatioF());
    const int line = offset * ratio;
    const int leavingWidth = page(leaving).width() * ratio;
    const int width = stack.width() * ratio;
    return [=, &out = page(leaving), &in = page(arriving)](int x, int y) {
        QRgb color = 0;
        if (!fromLeft)
            color = x < line ? out.colorAt(x - line + leavingWidth, y) : in.colorAt(x - line, y);
        else if (x < line)
            color = in.colorAt(x - line + width, y);
        else if (x < leavingWidth) // it loses on the right what has moved out
            color = out.colorAt(x - line, y);
        return color == 0 ? background : color;
    };
}

QImage StackFixture::pictureOfStep(const std::function<void(QPainter&)>& step) const
{
    const int ratio = qRound(stack.devicePixelRatioF());
    QImage image(stack.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    step(painter);
    painter.end();
    return image;
}

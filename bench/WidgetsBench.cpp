// A slide's frame, the indicator's painting, and what an indicator costs that covers a page.

#include "bench/BenchPages.h"
#include "bench/Ratio.h"
#include "widgets/QAnimationStackedWidget.h"
#include "widgets/QProgressIndicator.h"

#include <QApplication>
#include <QGraphicsEffect>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr QSize screenSize(1280, 800);
constexpr QSize indicatorSize(400, 300);

void show(QWidget& widget)
{
    widget.resize(screenSize);
    widget.show();
    QCoreApplication::processEvents();
}

// One frame of a slide against pictures of the same two pages.
void slideAgainstGrabbingBothPages(benchmark::State& state)
{
    QAnimationStackedWidget stack;
    QWidget* table = makeTablePage().release();
    QWidget* form = makeFormPage().release();
    stack.addWidget(table);
    stack.addWidget(form);
    show(stack);
    stack.setDuration(1 << 30);
    stack.next();
    int offset = screenSize.width();
    const auto frame = [&] {
        offset = offset > 40 ? offset - 37 : screenSize.width();
        stack.slotValueChanged(offset);
        stack.repaint();
    };
    const auto grab = [&] {
        table->grab();
        form->grab();
    };
    compare(state, frame, grab, 1.15);
}

// What the indicator shows, painted as plainly as can be, with all figures known beforehand.
class HandPainted : public QWidget
{
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(0, 0, 400, 300, QColor(0, 0, 0, 150));
        painter.setPen(Qt::NoPen);
        painter.translate(199, 149);
        for (int i = 0; i < 12; ++i) {
            painter.setBrush(QColor(0, 0, 0, 255 * (12 - i) / 12));
            painter.drawRoundedRect(-3, -44, 6, 28, 3, 3);
            painter.rotate(-30);
        }
    }
};

// At a scale of so many times the usual resolution.
void indicatorAgainstFillAndTwelveRectangles(benchmark::State& state)
{
    const auto ratio = static_cast<int>(state.range(0));
    QProgressIndicator indicator;
    HandPainted peer;
    indicator.setDisplayedWhenStopped(true);
    QImage image(indicatorSize * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    for (QWidget* widget : {static_cast<QWidget*>(&indicator), static_cast<QWidget*>(&peer)})
        widget->resize(indicatorSize);
    const auto paint = [&image](QWidget& widget) {
        widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    };
    compare(
        state, [&] { paint(indicator); }, [&] { paint(peer); }, 1.1);
}

// Draws its widget from a picture kept until the widget changes.
class KeptPicture : public QGraphicsEffect
{
protected:
    void draw(QPainter* painter) override
    {
        QPoint offset;
        const QPixmap picture = sourcePixmap(Qt::LogicalCoordinates, &offset, NoPad);
        painter->drawPixmap(offset, picture);
    }
};

// A page under an indicator. A step of it paints what lies below again, too.
class Cover
{
public:
    Cover() : page(makeTablePage().release()), m_indicator(new QProgressIndicator(&window))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(page);
        show(window);
        m_indicator->setDisplayedWhenStopped(true);
        m_indicator->resize(screenSize);
        m_indicator->raise();
        m_indicator->show();
    }

    /// One step against the indicator's own painting.
    void compareStep(benchmark::State& state)
    {
        QImage image(screenSize, QImage::Format_RGB32);
        compare(
            state, [this] { m_indicator->repaint(); },
            [&] { m_indicator->render(&image, QPoint(), QRegion(), QWidget::DrawChildren); });
    }

    void putBelow(QWidget& widget) { widget.stackUnder(m_indicator); }

    QWidget window;
    QWidget* page;

private:
    QProgressIndicator* m_indicator;
};

void stepOverPageAgainstItsOwnPainting(benchmark::State& state)
{
    Cover().compareStep(state);
}

void stepOverKeptPictureAgainstItsOwnPainting(benchmark::State& state)
{
    Cover cover;
    cover.page->setGraphicsEffect(new KeptPicture);
    cover.compareStep(state);
}

// The page stays in view, behind an opaque picture of itself.
void stepOverOpaquePictureAgainstItsOwnPainting(benchmark::State& state)
{
    Cover cover;
    QLabel picture(&cover.window);
    picture.setPixmap(cover.page->grab());
    picture.setAttribute(Qt::WA_OpaquePaintEvent);
    picture.setGeometry(cover.window.rect());
    picture.show();
    cover.putBelow(picture);
    cover.compareStep(state);
}

void rounds(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(301);
}

BENCHMARK(slideAgainstGrabbingBothPages)->Apply(rounds);
BENCHMARK(indicatorAgainstFillAndTwelveRectangles)->Arg(1)->Arg(2)->Apply(rounds);
BENCHMARK(stepOverPageAgainstItsOwnPainting)->Apply(rounds);
BENCHMARK(stepOverKeptPictureAgainstItsOwnPainting)->Apply(rounds);
BENCHMARK(stepOverOpaquePictureAgainstItsOwnPainting)->Apply(rounds);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

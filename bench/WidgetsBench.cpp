#include "bench/BenchPages.h"
#include "bench/Comparison.h"
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
void compareSlide(const Comparison& comparison)
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
    comparison.run("slide, one frame, 1280 x 800", frame, "grabbing both pages", grab, 1.15);
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

void compareIndicator(const Comparison& comparison, int ratio)
{
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
    comparison.run(
        "indicator, 400 x 300 at " + std::to_string(ratio * 100) + " %", [&] { paint(indicator); },
        "fill and 12 rounded rectangles", [&] { paint(peer); }, 1.1);
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

// One step of an indicator that covers a page: what lies under it is painted again, too.
void compareCover(const Comparison& comparison)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    QWidget* page = makeTablePage().release();
    layout->addWidget(page);
    show(window);
    auto* indicator = new QProgressIndicator(&window);
    indicator->setDisplayedWhenStopped(true);
    indicator->show();
    QImage image(screenSize, QImage::Format_RGB32);
    const auto alone = [&] {
        indicator->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    };
    const auto step = [&] { indicator->repaint(); };
    comparison.run("indicator's step over a table", step, "its own painting", alone);

    page->setGraphicsEffect(new KeptPicture);
    comparison.run("  the table drawn from a kept picture", step, "its own painting", alone);
    page->setGraphicsEffect(nullptr);

    auto* picture = new QLabel(&window);
    picture->setPixmap(page->grab());
    picture->setAttribute(Qt::WA_OpaquePaintEvent);
    page->hide();
    picture->setGeometry(window.rect());
    picture->show();
    picture->stackUnder(indicator);
    comparison.run("  the table hidden behind its picture", step, "its own painting", alone);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    compareSlide(Comparison(301));
    compareIndicator(Comparison(501), 1);
    compareIndicator(Comparison(501), 2);
    compareCover(Comparison(101));
    return 0;
}

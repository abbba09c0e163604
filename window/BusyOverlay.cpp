#include "window/BusyOverlay.h"

#include "widgets/ButtonMonitor.h"
#include "widgets/QProgressIndicator.h"

#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The wheel turns on a darkened page, so it takes the lighter one of two opposite colours.
QColor wheelColor(const QPalette& palette)
{
    const QColor& base = palette.color(QPalette::Base);
    const QColor& text = palette.color(QPalette::Text);
    return base.lightness() > text.lightness() ? base : text;
}

} // namespace

BusyOverlay::BusyOverlay(QWidget* content)
    : QWidget(content->parentWidget()),
      m_content(content),
      m_title(new QLabel),
      m_progress(new QLabel),
      m_cancel(new QPushButton(tr("Cancel"))),
      m_panel(makePanel())
{
    content->installEventFilter(this);
    setAccessibleName(tr("Work in progress"));
    m_cancel->installEventFilter(&g_buttonMonitor);
    connect(m_cancel, &QPushButton::clicked, this, &BusyOverlay::cancelRequested);
    setFocusProxy(m_cancel);
    hide();
}

QWidget* BusyOverlay::makePanel()
{
    auto* panel = new QFrame(this);
    panel->setFrameStyle(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(panel);
    for (QLabel* label : {m_title, m_progress}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addWidget(m_cancel, 0, Qt::AlignCenter);
    return panel;
}

void BusyOverlay::cover(const QString& title)
{
    m_title->setText(title);
    m_progress->setText(QString(QLatin1Char(' '))); // keeps the line's height
    setGeometry(m_content->geometry());
    takePicture();
    raise();
    show();
    // An indicator takes the size of its parent when it is made.
    m_wheel = new QProgressIndicator(this);
    m_wheel->setColor(wheelColor(palette()));
    m_wheel->lower();
    m_wheel->show();
    m_wheel->startAnimation();
    arrange();
    setFocus();
}

void BusyOverlay::setProgress(const QString& text)
{
    constexpr qint64 pictureLifeMs = 500;
    m_progress->setText(text);
    arrange();
    if (m_sincePicture.hasExpired(pictureLifeMs))
        takePicture();
}

void BusyOverlay::uncover()
{
    hide();
    setPicture({});
    if (m_wheel)
        m_wheel->close();
}

void BusyOverlay::takePicture()
{
    m_sincePicture.start();
    if (m_content->isVisible())
        setPicture(m_content->grab());
}

// With a picture the overlay is opaque, so that Qt does not paint the page below it at each step of
// the wheel.
void BusyOverlay::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    setAttribute(Qt::WA_OpaquePaintEvent, !picture.isNull());
    update();
}

bool BusyOverlay::eventFilter(QObject* watched, QEvent* event)
{
    static constexpr QEvent::Type outdating[] = {QEvent::Resize, QEvent::PaletteChange,
                                                 QEvent::StyleChange, QEvent::FontChange};
    if (watched == m_content) {
        if (event->type() == QEvent::Resize)
            setGeometry(m_content->geometry());
        if (std::count(std::begin(outdating), std::end(outdating), event->type()) > 0)
            setPicture({});
    }
    return QWidget::eventFilter(watched, event);
}

void BusyOverlay::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit cancelRequested();
    else
        QWidget::keyPressEvent(event);
}

void BusyOverlay::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_picture.isNull())
        QPainter(this).drawPixmap(0, 0, m_picture);
}

void BusyOverlay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_wheel)
        m_wheel->resize(size());
    arrange();
}

// The panel stands below the wheel, which takes less than a third of the smaller side.
void BusyOverlay::arrange()
{
    const QSize wanted = m_panel->sizeHint().expandedTo(m_panel->size()).boundedTo(size());
    const int below = height() / 2 + qMin(width(), height()) / 5;
    const int top = qMax(0, qMin(below, height() - wanted.height()));
    m_panel->setGeometry((width() - wanted.width()) / 2, top, wanted.width(), wanted.height());
}

#include "pages/input/CursorPanel.h"

#include "platform/PlatformServicesImp.h"
#include "window/AnswerField.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QPushButton>

#include <algorithm>

namespace {

struct Shape
{
    Qt::CursorShape shape;
    const char* name;
};

constexpr Shape shapes[] = {
    {Qt::ArrowCursor, QT_TRANSLATE_NOOP("CursorPanel", "Arrow")},
    {Qt::WaitCursor, QT_TRANSLATE_NOOP("CursorPanel", "Wait")},
    {Qt::BusyCursor, QT_TRANSLATE_NOOP("CursorPanel", "Busy")},
    {Qt::CrossCursor, QT_TRANSLATE_NOOP("CursorPanel", "Cross")},
    {Qt::IBeamCursor, QT_TRANSLATE_NOOP("CursorPanel", "Text")},
    {Qt::PointingHandCursor, QT_TRANSLATE_NOOP("CursorPanel", "Hand")},
    {Qt::SizeAllCursor, QT_TRANSLATE_NOOP("CursorPanel", "Move")},
    {Qt::ForbiddenCursor, QT_TRANSLATE_NOOP("CursorPanel", "Forbidden")},
};

IPlatformCursorManager* service()
{
    return g_PlatformServices.cursorManager();
}

QString text(const POINT& point)
{
    return QStringLiteral("%1, %2").arg(point.x).arg(point.y);
}

QString shapeName(Qt::CursorShape shape)
{
    const auto* found = std::find_if(std::begin(shapes), std::end(shapes),
                                     [shape](const Shape& entry) { return entry.shape == shape; });
    return found == std::end(shapes) ? CursorPanel::tr("shape %1").arg(shape)
                                     : CursorPanel::tr(found->name);
}

} // namespace

CursorPanel::CursorPanel(QWidget* parent) : QGroupBox(tr("Pointer and cursor"), parent)
{
    auto* form = new QFormLayout(this);
    m_screen = addValue(form, tr("GetCursorPos (screen):"), QStringLiteral("screen"));
    m_window = addValue(form, tr("ScreenToClient (window):"), QStringLiteral("window"));
    m_cursor = addValue(form, tr("GetCursor (override):"), QStringLiteral("cursor"));
    form->addRow(makeTools());
}

CursorPanel::~CursorPanel()
{
    popLevels();
}

AnswerField* CursorPanel::addValue(QFormLayout* form, const QString& caption,
                                   const QString& objectName)
{
    auto* value = new AnswerField(caption, objectName);
    form->addRow(caption, value);
    return value;
}

QWidget* CursorPanel::makeTools()
{
    auto* place = new QWidget;
    m_shapes = new QComboBox;
    m_shapes->setAccessibleName(tr("Shape of the cursor"));
    addShapes();
    auto* set = glowing(new QPushButton(tr("S&etCursor")));
    set->setToolTip(tr("Each SetCursor adds a level to the stack of cursors, and the service never "
                       "takes one away."));
    connect(set, &QPushButton::clicked, this, &CursorPanel::setCursorShape);
    m_takeBack = glowing(new QPushButton(tr("Ta&ke back")));
    m_takeBack->setToolTip(tr("Takes away the levels added here, past the service, which cannot."));
    connect(m_takeBack, &QPushButton::clicked, this, &CursorPanel::takeBack);
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_shapes);
    row->addWidget(set);
    row->addWidget(m_takeBack);
    row->addStretch();
    return place;
}

void CursorPanel::addShapes()
{
    for (const Shape& shape : shapes)
        m_shapes->addItem(tr(shape.name), static_cast<int>(shape.shape));
    m_shapes->addItem(QStringLiteral("null"));
}

void CursorPanel::setCursorShape()
{
    if (!m_shapes->currentData().isValid()) {
        service()->SetCursor(nullptr);
        emit reported(Page::Report::Info, tr("SetCursor with null changes nothing."));
        return;
    }
    QCursor cursor(static_cast<Qt::CursorShape>(m_shapes->currentData().toInt()));
    service()->SetCursor(&cursor);
    ++m_levels;
    refresh();
    emit reported(Page::Report::Info, tr("Levels added from here: %1.").arg(m_levels));
}

// The service has no call for it.
void CursorPanel::popLevels()
{
    for (; m_levels > 0; --m_levels)
        QGuiApplication::restoreOverrideCursor();
}

void CursorPanel::takeBack()
{
    popLevels();
    refresh();
}

void CursorPanel::showPosition()
{
    POINT point{};
    service()->GetCursorPos(&point);
    m_screen->setAnswer(text(point));
    service()->ScreenToClient(window(), &point);
    m_window->setAnswer(text(point));
}

void CursorPanel::refresh()
{
    showPosition();
    const auto* cursor = static_cast<const QCursor*>(service()->GetCursor());
    m_cursor->setAnswer(cursor ? shapeName(cursor->shape()) : tr("null: none is set"));
    m_takeBack->setEnabled(m_levels > 0);
}

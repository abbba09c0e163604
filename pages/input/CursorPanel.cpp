#include "pages/input/CursorPanel.h"

#include "inspection/input/CursorShapes.h"
#include "inspection/input/PointerPosition.h"
#include "platform/PlatformServicesImp.h"
#include "window/AnswerField.h"
#include "window/Page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>

CursorPanel::CursorPanel(PageContext& page, QWidget* parent)
    : QGroupBox(tr("Pointer and cursor"), parent), m_page(page)
{
    auto* form = new QFormLayout(this);
    m_screen = addValue(form, tr("GetCursorPos (screen):"), QStringLiteral("screen"));
    m_window = addValue(form, tr("ScreenToClient (window):"), QStringLiteral("window"));
    m_cursor = addValue(form, tr("GetCursor (override):"), QStringLiteral("cursor"));
    form->addRow(makeTools());
    const int line = fontMetrics().height();
    form->setContentsMargins(line / 2, line / 5, line / 2, line / 5);
    form->setVerticalSpacing(line / 5);
}

AnswerField* CursorPanel::addValue(QFormLayout* form, const QString& caption,
                                   const QString& objectName)
{
    auto* value = new AnswerField(caption, objectName);
    form->addRow(caption, value);
    return value;
}

QLayout* CursorPanel::makeTools()
{
    m_shapes = new QComboBox;
    m_shapes->setAccessibleName(tr("Shape of the cursor"));
    for (const Qt::CursorShape shape : CursorShapes::offered)
        m_shapes->addItem(CursorShapes::name(shape), static_cast<int>(shape));
    m_shapes->addItem(QStringLiteral("null"));
    auto* set = glowing(new QPushButton(tr("S&etCursor")));
    set->setToolTip(tr("Each SetCursor adds a level to the stack of cursors, and the service never "
                       "takes one away."));
    connect(set, &QPushButton::clicked, this, &CursorPanel::setCursorShape);
    m_takeBack = glowing(new QPushButton(tr("Ta&ke back")));
    m_takeBack->setToolTip(tr("Takes away the levels added here, past the service, which cannot."));
    connect(m_takeBack, &QPushButton::clicked, this, &CursorPanel::takeBack);
    auto* row = new QHBoxLayout;
    row->addWidget(m_shapes);
    row->addWidget(set);
    row->addWidget(m_takeBack);
    row->addStretch();
    return row;
}

void CursorPanel::setCursorShape()
{
    const QVariant shape = m_shapes->currentData();
    if (!shape.isValid()) {
        g_PlatformServices.cursorManager()->SetCursor(nullptr);
        m_page.report(PageContext::Report::Info, tr("SetCursor with null changes nothing."));
        return;
    }
    m_levels.add(static_cast<Qt::CursorShape>(shape.toInt()));
    refresh();
    m_page.report(PageContext::Report::Info,
                  tr("Levels added from here: %L1.").arg(m_levels.count()));
}

void CursorPanel::takeBack()
{
    m_levels.takeBack();
    refresh();
}

void CursorPanel::refresh()
{
    const QPoint position = pointerPosition();
    m_screen->setAnswer(pointText(position));
    POINT point{position.x(), position.y()};
    g_PlatformServices.cursorManager()->ScreenToClient(window(), &point);
    m_window->setAnswer(pointText({point.x, point.y}));
    m_cursor->setAnswer(CursorShapes::current());
    m_takeBack->setEnabled(m_levels.count() > 0);
}

#include "window/PageRail.h"

#include "widgets/ButtonMonitor.h"
#include "window/AccessibleRole.h"
#include "window/GlyphIcon.h"
#include "window/RailButton.h"
#include "window/ShownText.h"

#include <QApplication>
#include <QButtonGroup>
#include <QKeySequence>
#include <QVBoxLayout>

PageRail::PageRail(const std::vector<PageEntry>& pages, QWidget* parent)
    : QWidget(parent), m_buttons(new QButtonGroup(this))
{
    setAccessibleRole(*this, QAccessible::PageTabList);
    setAccessibleName(tr("Pages"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    for (const PageEntry& page : pages) {
        const int index = m_buttons->buttons().size();
        auto* button = new RailButton(glyphIcon(page.glyph), page.title);
        button->setObjectName(page.name);
        button->setAccessibleName(withoutMnemonic(page.title));
        button->setToolTip(QKeySequence(QStringLiteral("Alt+%1").arg(index + 1))
                               .toString(QKeySequence::NativeText));
        button->installEventFilter(&g_buttonMonitor);
        connect(button, &QPushButton::clicked, this, [this, index] { tell(index); });
        m_buttons->addButton(button, index);
        layout->addWidget(button);
    }
    layout->addStretch();
}

// An arrow key presses the next button while the one before it still has the keyboard.
void PageRail::tell(int page)
{
    const auto buttons = m_buttons->buttons();
    auto* focus = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    if (focus && focus != m_buttons->button(page) && buttons.contains(focus))
        emit browsed(page);
    else
        emit chosen(page);
}

int PageRail::choice() const
{
    return m_buttons->checkedId();
}

void PageRail::setChosen(int page)
{
    if (QAbstractButton* button = m_buttons->button(page))
        button->setChecked(true);
}

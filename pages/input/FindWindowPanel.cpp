#include "pages/input/FindWindowPanel.h"

#include "inspection/input/WindowSearch.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

QString description(HWND handle)
{
    const auto* widget = static_cast<const QWidget*>(handle);
    return FindWindowPanel::tr("%1, title \u201c%2\u201d, at 0x%3")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->windowTitle(),
             QString::number(reinterpret_cast<quintptr>(handle), 16));
}

} // namespace

FindWindowPanel::FindWindowPanel(PageContext& page, QWidget* parent)
    : QGroupBox(QStringLiteral("FindWindowW"), parent), m_page(page), m_result(new QLabel)
{
    auto* form = new QFormLayout(this);
    m_className = addField(tr("Class na&me:"), form);
    m_windowName = addField(tr("&Window name:"), form);
    m_windowName->setToolTip(tr("Not looked at where there is a class name. Without both, the "
                                "first window is found."));
    auto* button = glowing(new QPushButton(tr("Find &now")));
    connect(button, &QPushButton::clicked, this, &FindWindowPanel::find);
    m_result->setText(tr("With a class name, the window name is not looked at."));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_result->setObjectName(QStringLiteral("result"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_result, 1);
    row->addWidget(button, 0, Qt::AlignTop);
    form->addRow(row);
    const int line = fontMetrics().height();
    form->setContentsMargins(line / 2, line / 5, line / 2, line / 5);
    form->setVerticalSpacing(line / 5);
}

QLineEdit* FindWindowPanel::addField(const QString& caption, QFormLayout* form)
{
    auto* field = new QLineEdit;
    field->setAccessibleName(withoutMnemonic(caption));
    field->setPlaceholderText(tr("null"));
    connect(field, &QLineEdit::returnPressed, this, &FindWindowPanel::find);
    form->addRow(caption, field);
    return field;
}

void FindWindowPanel::focusFirst()
{
    m_className->setFocus();
    m_className->selectAll();
}

void FindWindowPanel::find()
{
    const HWND found = findWindow(m_className->text(), m_windowName->text());
    m_result->setText(found ? description(found) : tr("null: no window was found"));
    m_page.report(PageContext::Report::Info, searchRemark(found));
}

#include "window/HelpWindow.h"

#include "window/AboutDialog.h"
#include "window/HelpText.h"
#include "window/Page.h"
#include "window/WindowSize.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>

HelpWindow::HelpWindow(const std::vector<PageEntry>& pages, QWidget* parent)
    : QDialog(parent), m_text(new QTextBrowser)
{
    setWindowTitle(tr("Help"));
    m_text->setAccessibleName(tr("Help"));
    m_text->setHtml(HelpText::whole(pages));
    m_text->setTabChangesFocus(true);
    auto* buttons = new QDialogButtonBox;
    auto* about = buttons->addButton(tr("&About Quayside..."), QDialogButtonBox::ActionRole);
    connect(glowing(about), &QPushButton::clicked, this, &HelpWindow::showAbout);
    glowing(buttons->addButton(QDialogButtonBox::Close));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* quit = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this);
    connect(quit, &QShortcut::activated, this, &HelpWindow::closeAll);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(buttons);
    const int unit = fontMetrics().height();
    resize(QSize(unit * 44, unit * 40).boundedTo(smallestWindow));
}

void HelpWindow::showAt(const QString& page)
{
    if (isVisible())
        raise();
    show();
    activateWindow();
    m_text->setFocus();
    m_text->scrollToAnchor(page);
}

void HelpWindow::showAbout()
{
    AboutDialog(this).exec();
}

void HelpWindow::closeAll()
{
    close();
    if (parentWidget())
        parentWidget()->close();
}

#include "pages/crypto/CryptoPage.h"

#include "pages/crypto/Base64Panel.h"
#include "pages/crypto/CipherPanel.h"
#include "pages/crypto/DigestPanel.h"
#include "window/ViewLook.h"

#include <QTabWidget>
#include <QVBoxLayout>

CryptoPage::CryptoPage(QWidget* parent) : Page(parent), m_tabs(new QTabWidget)
{
    m_tabs->setAccessibleName(tr("Kinds of work"));
    m_tabs->addTab(new CipherPanel(*this), tr("Encr&yption"));
    m_tabs->addTab(new DigestPanel(*this), tr("Di&gests"));
    m_tabs->addTab(new Base64Panel(*this), tr("&Base64"));
    arrangeTabs(*m_tabs);
    body()->addWidget(m_tabs, 1);
    connect(m_tabs, &QTabWidget::currentChanged, this, &CryptoPage::followTab);
    followTab();
}

void CryptoPage::find()
{
    m_tabs->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}

// What was said of one tab is no news of another one.
void CryptoPage::followTab()
{
    setStatus({});
    setFocusProxy(m_tabs->currentWidget());
}

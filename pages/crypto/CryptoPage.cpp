#include "pages/crypto/CryptoPage.h"

#include "inspection/crypto/DigestJob.h"
#include "pages/crypto/Base64Panel.h"
#include "pages/crypto/CipherPanel.h"
#include "pages/crypto/DigestPanel.h"
#include "window/ViewLook.h"

#include <QTabWidget>
#include <QVBoxLayout>

CryptoPage::CryptoPage(QWidget* parent) : Page(parent), m_tabs(new QTabWidget)
{
    m_tabs->setAccessibleName(tr("Kinds of work"));
    addPanel<CipherPanel>(tr("Encr&yption"));
    m_digests = addPanel<DigestPanel>(tr("Di&gests"));
    addPanel<Base64Panel>(tr("&Base64"));
    arrangeTabs(*m_tabs);
    body()->addWidget(m_tabs, 1);
    connect(m_digests, &DigestPanel::requested, this, &CryptoPage::digest);
    connect(m_tabs, &QTabWidget::currentChanged, this, &CryptoPage::followTab);
    followTab();
}

template <typename Panel>
Panel* CryptoPage::addPanel(const QString& caption)
{
    auto* panel = new Panel;
    connect(panel, &Panel::reported, this, &CryptoPage::report);
    m_tabs->addTab(panel, caption);
    return panel;
}

void CryptoPage::find()
{
    m_tabs->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}

void CryptoPage::followTab()
{
    setFocusProxy(m_tabs->currentWidget());
}

void CryptoPage::digest(const std::shared_ptr<DigestJob>& job)
{
    startJob({tr("Digesting"), [job] { return job->step(); }, [job] { return job->progress(); },
              [this, job](bool complete) { m_digests->showResult(*job, complete); }});
}

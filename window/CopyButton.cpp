#include "window/CopyButton.h"

#include "window/Page.h"

#include <QClipboard>
#include <QGuiApplication>

CopyButton::CopyButton(const QString& what, std::function<QString()> text, QWidget* parent)
    : QPushButton(tr("Copy"), parent), m_text(std::move(text))
{
    glowing(this);
    setAccessibleName(tr("Copy: %1").arg(what));
    setToolTip(accessibleName());
    connect(this, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_text()); });
    refreshState();
}

void CopyButton::refreshState()
{
    setEnabled(!m_text().isEmpty());
}

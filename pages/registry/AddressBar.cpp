#include "pages/registry/AddressBar.h"

#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TypedAddress.h"
#include "pages/registry/RegistryTreeModel.h"
#include "window/PageContext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using Report = PageContext::Report;

AddressBar::AddressBar(PageContext& page, RegistryTreeModel& keys, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_keys(keys),
      m_layout(new QHBoxLayout(this)),
      m_line(new QLineEdit)
{
    auto* caption = new QLabel(tr("&Go to:"));
    caption->setBuddy(m_line);
    m_line->setObjectName(QStringLiteral("address"));
    m_line->setAccessibleName(tr("Path of the key"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(caption);
    m_layout->addWidget(m_line, 1);
    connect(m_line, &QLineEdit::returnPressed, this, &AddressBar::open);
}

void AddressBar::setPath(const QString& path)
{
    m_line->setText(RegistryPath::shown(path));
}

void AddressBar::addButton(QWidget* button)
{
    m_layout->addWidget(button);
}

void AddressBar::open()
{
    const QStringList paths = pathsOfAddress(m_line->text());
    const auto isThere = [this](const QString& path) {
        return m_keys.path(m_keys.find(path)) == path;
    };
    const auto found = std::find_if(paths.begin(), paths.end(), isThere);
    if (found != paths.end())
        emit entered(*found);
    else if (!paths.isEmpty())
        openNearest(paths.last());
    else
        m_page.report(Report::Error,
                      tr("%1 begins with none of the four root keys.").arg(m_line->text()));
}

void AddressBar::openNearest(const QString& path)
{
    emit missed(path);
    m_page.report(Report::Warning, tr("There is no key %1.").arg(RegistryPath::shown(path)));
}

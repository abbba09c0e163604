#include "app/frame/StatusLine.h"

#include "app/HostInformation.h"
#include "app/frame/PathLabel.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>

namespace {

QLabel* plain(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent)
{
    const QString library = HostInformation::libraryPath();
    QLabel* host = plain(library.isEmpty() ? tr("unknown") : QFileInfo(library).fileName());
    host->setToolTip(library);
    add(tr("Host library:"), host, 0);
    const QString store = HostInformation::storePath();
    add(tr("Settings store:"),
        store.isEmpty() ? static_cast<QWidget*>(plain(tr("none"))) : new PathLabel(store), 1);
    add(tr("Language:"), plain(HostInformation::language()), 0);
}

void StatusLine::add(const QString& caption, QWidget* value, int stretch)
{
    value->setAccessibleName(caption);
    auto* pair = new QWidget(this);
    auto* layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, fontMetrics().averageCharWidth(), 0);
    layout->addWidget(plain(caption));
    layout->addWidget(value);
    if (stretch > 0)
        layout->addStretch();
    addWidget(pair, stretch);
}

#include "app/frame/StatusLine.h"

#include "app/HostInformation.h"
#include "app/frame/PathLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace {

QLabel* plain(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent)
{
    // In line with the rail's buttons.
    setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0, 0);
    const QString library = HostInformation::libraryPath();
    add(tr("Host library:"),
        library.isEmpty() ? static_cast<QWidget*>(plain(tr("unknown")))
                          : new PathLabel(library, PathLabel::FileName),
        0);
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

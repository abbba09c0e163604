#include "window/StatusLine.h"

#include "app/HostInformation.h"
#include "inspection/registry/RawStore.h"
#include "window/PathLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

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
    if (library.isEmpty())
        addText(tr("Host library:"), tr("unknown"), 0);
    else
        addPath(tr("Host library:"), new PathLabel(library, PathLabel::FileName), 0);
    const QString store = RawStore::fileName();
    if (store.isEmpty())
        addText(tr("Settings store:"), tr("none"), 1);
    else
        addPath(tr("Settings store:"), new PathLabel(store), 1);
    addText(tr("Language:"), HostInformation::language(), 0);
    addHelp();
}

void StatusLine::addHelp()
{
    auto* button = new QToolButton;
    button->setText(tr("Help"));
    button->setToolTip(tr("F1: what each page answers, what wide and narrow calls are, and keys"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, &StatusLine::helpRequested);
    addPermanentWidget(button);
}

void StatusLine::addText(const QString& caption, const QString& text, int stretch)
{
    QLabel* label = plain(text);
    label->setAccessibleName(caption + QLatin1Char(' ') + text);
    add(caption, label, stretch);
}

void StatusLine::addPath(const QString& caption, PathLabel* path, int stretch)
{
    path->setCaption(caption);
    add(caption, path, stretch);
}

void StatusLine::add(const QString& caption, QWidget* value, int stretch)
{
    auto* pair = new QWidget(this);
    auto* layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, fontMetrics().averageCharWidth(), 0);
    layout->addWidget(plain(caption));
    layout->addWidget(value);
    if (stretch > 0)
        layout->addStretch();
    addWidget(pair, stretch);
}

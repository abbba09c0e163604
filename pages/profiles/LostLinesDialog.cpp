#include "pages/profiles/LostLinesDialog.h"

#include "pages/profiles/ProfileText.h"
#include "platform/profiles/LineStateText.h"
#include "window/Page.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QListWidget* lostLines(const ProfileDocument& document, ProfileFamily family)
{
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("lostLines"));
    list->setUniformItemSizes(true); // a large file may have thousands
    list->setAccessibleName(LostLinesDialog::tr("Lines that would be lost"));
    for (const int number : document.lostLines(family)) {
        const ProfileDocument::Line line = document.line(number - 1);
        const LineReading& reading = family == ProfileFamily::Narrow ? line.narrow : line.wide;
        auto* item = new QListWidgetItem(
            LostLinesDialog::tr("%1 (%2): %3")
                .arg(QString::number(number), shortText(reading), shownText(line.text)));
        item->setToolTip(longText(reading, family));
        list->addItem(item);
    }
    list->setCurrentRow(0);
    return list;
}

QLabel* wrapped(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

LostLinesDialog::LostLinesDialog(const ProfileDocument& document, ProfileFamily family,
                                 const QString& changes, QWidget* parent)
    : QDialog(parent)
{
    auto* layout = new QVBoxLayout(this);
    if (document.lostLines(family).empty()) {
        setWindowTitle(tr("Changes to the file"));
        layout->addWidget(
            wrapped(tr("The narrow family writes the whole file anew. No line that holds anything "
                       "would be lost, but the file would not stay as it is:")));
    } else {
        setWindowTitle(tr("Lines that would be lost"));
        addLines(layout, document, family);
        resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 18);
    }
    auto* rest = wrapped(changes);
    rest->setObjectName(QStringLiteral("changes"));
    layout->addWidget(rest);
    if (changes.isEmpty())
        rest->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* write =
        glowing(buttons->addButton(tr("&Write all the same"), QDialogButtonBox::AcceptRole));
    write->setObjectName(QStringLiteral("writeAllTheSame"));
    glowing(buttons->button(QDialogButtonBox::Cancel))->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void LostLinesDialog::addLines(QVBoxLayout* layout, const ProfileDocument& document,
                               ProfileFamily family)
{
    layout->addWidget(wrapped(
        family == ProfileFamily::Narrow
            ? tr("The narrow family writes the whole file anew, sorted, and only what it has kept. "
                 "These lines would be lost:")
            : tr("The wide family writes the whole file anew, and only what it has kept. These "
                 "lines "
                 "would be lost or cut short:")));
    layout->addWidget(lostLines(document, family), 1);
}

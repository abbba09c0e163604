#include "pages/profiles/ProfileDifferenceDialog.h"

#include "pages/profiles/DifferenceColumns.h"
#include "window/ColumnFit.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Action = ProfileChange::Action;

// Which lines they are depends on the family.
QString found(const ProfileChange& change)
{
    const bool isKey = change.action == Action::DeleteKey;
    if (change.family == ProfileFamily::Narrow)
        return isKey ? ProfileDifferenceDialog::tr("The narrow family finds the key “%1” here.")
                           .arg(change.key)
                     : ProfileDifferenceDialog::tr("The narrow family finds the section “%1” here.")
                           .arg(change.section);
    return isKey ? ProfileDifferenceDialog::tr("The wide family finds the key “%1” here.")
                       .arg(change.key)
                 : ProfileDifferenceDialog::tr("The wide family finds the section “%1” here.")
                       .arg(change.section);
}

QString explanation(const ProfileChange& change)
{
    if (change.action != Action::Set)
        return found(change) + QLatin1Char(' ') +
               ProfileDifferenceDialog::tr(
                   "No family of calls can delete: a null value is written as an empty one, "
                   "and a call without a key is refused. So these lines are taken out of "
                   "the file, and the others stay as they are.");
    return change.family == ProfileFamily::Narrow
               ? ProfileDifferenceDialog::tr(
                     "The narrow family writes the whole file anew, sorted, and only what "
                     "it has kept. The file would change like this:")
               : ProfileDifferenceDialog::tr(
                     "The wide family writes the whole file anew, sorted, and only what it "
                     "has kept. The file would change like this:");
}

} // namespace

ProfileDifferenceDialog::ProfileDifferenceDialog(
    std::shared_ptr<const ProfileDifference> difference, const ProfileChange& change,
    QWidget* parent)
    : QDialog(parent), m_difference(std::move(difference))
{
    setWindowTitle(change.action == Action::Set ? tr("Changes to the file")
                                                : tr("Lines to be deleted"));
    auto* layout = new QVBoxLayout(this);
    addSentence(layout, "explanation", explanation(change));
    addSentence(layout, "destroyed", destroyed());
    addSentence(layout, "form", m_difference->formChanges().join(QLatin1Char(' ')));
    layout->addWidget(makeTable(), 1);
    addSentence(layout, "summary", summary());
    addButtons(layout, change);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 24);
}

void ProfileDifferenceDialog::addSentence(QVBoxLayout* layout, const char* objectName,
                                          const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(objectName));
    label->setWordWrap(true);
    layout->addWidget(label);
    label->setVisible(!text.isEmpty());
}

void ProfileDifferenceDialog::addButtons(QVBoxLayout* layout, const ProfileChange& change)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    const QString caption =
        change.action == Action::Set ? tr("&Write all the same") : tr("&Delete these lines");
    auto* write = glowing(buttons->addButton(caption, QDialogButtonBox::AcceptRole));
    write->setObjectName(QStringLiteral("writeAllTheSame"));
    write->setAutoDefault(false);
    auto* cancel = glowing(buttons->button(QDialogButtonBox::Cancel));
    cancel->setDefault(true);
    layout->addWidget(buttons);
    cancel->setFocus(); // not the table, which takes the Return key
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QTableView* ProfileDifferenceDialog::makeTable()
{
    auto* table = new QTableView;
    auto* model =
        new RecordsModel<DifferenceRow>(DifferenceColumns::of(m_difference, palette()), this);
    model->setRecords(m_difference->rows());
    table->setObjectName(QStringLiteral("difference"));
    table->setAccessibleName(tr("Lines before and after"));
    table->setModel(model);
    arrangeTable(*table);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 4 / 3);
    ColumnFit::of(*table).setSamples(DifferenceColumns::samples());
    return table;
}

QString ProfileDifferenceDialog::summary() const
{
    const LineDifference& lines = m_difference->lines();
    return tr("Lines removed: %1. Lines added: %2.")
        .arg(QLocale().toString(lines.removed()), QLocale().toString(lines.added()));
}

// The first of them: a list that fills the screen would say no more.
QString ProfileDifferenceDialog::destroyed() const
{
    constexpr std::size_t most = 12;
    const std::vector<int>& lines = m_difference->destroyedLines();
    if (lines.empty())
        return {};
    QStringList numbers;
    for (std::size_t i = 0; i < lines.size() && i < most; ++i)
        numbers << QLocale().toString(lines[i]);
    if (lines.size() > most)
        numbers << QStringLiteral("...");
    return tr("These lines are not in the file's encoding, and their bytes would be lost: %1.")
        .arg(numbers.join(tr(", ", "between numbers of lines")));
}

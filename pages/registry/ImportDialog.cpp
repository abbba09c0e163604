#include "pages/registry/ImportDialog.h"

#include "pages/registry/ImportModel.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QString summary(const ImportPlan& plan)
{
    using Outcome = ImportPlan::Outcome;
    return ImportDialog::tr("As written in the file: %1. Altered: %2. Refused: %3.")
        .arg(plan.count(Outcome::Done))
        .arg(plan.count(Outcome::Altered))
        .arg(plan.count(Outcome::Refused));
}

QTableView* makeTable(ImportModel* model)
{
    auto* table = new QTableView;
    table->setModel(model);
    arrangeTable(*table);
    table->setAccessibleName(ImportDialog::tr("Statements of the file"));
    fitColumns(
        *table,
        {QStringLiteral("[x] Refused: a sentence of some length that says why it cannot be set"),
         QStringLiteral("HKEY_CURRENT_USER\\Software"), QStringLiteral("Name of a value"),
         QStringLiteral("12345 (0x00003039)")});
    return table;
}

} // namespace

ImportDialog::ImportDialog(const QString& file, const ImportPlan& plan, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Import %1").arg(file));
    auto* model = new ImportModel(plan, this);
    auto* only = new QCheckBox(tr("&Only what is altered or refused"));
    connect(only, &QCheckBox::toggled, model, &ImportModel::setOnlyRemarkable);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* ok = glowing(buttons->addButton(tr("I&mport"), QDialogButtonBox::AcceptRole));
    glowing(buttons->button(QDialogButtonBox::Cancel));
    const auto refused = static_cast<std::size_t>(plan.count(ImportPlan::Outcome::Refused));
    ok->setEnabled(refused < plan.statements().size());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(summary(plan)));
    layout->addWidget(makeTable(model), 1);
    layout->addWidget(only);
    layout->addWidget(buttons);
    const QSize wanted(fontMetrics().height() * 68, fontMetrics().lineSpacing() * 26);
    resize(parent ? wanted.boundedTo(parent->window()->size() * 0.95) : wanted);
}

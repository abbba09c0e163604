#include "pages/registry/ImportDialog.h"

#include "inspection/registry/ImportText.h"
#include "window/GlyphIcon.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Outcome = ImportPlan::Outcome;
using Row = const ImportPlan::Statement*;

QVariant outcomeLook(const Row& row, int role)
{
    if (role != Qt::DecorationRole || row->outcome == Outcome::Done)
        return {};
    return glyphIcon(row->outcome == Outcome::Refused ? Glyph::Error : Glyph::Warning);
}

std::vector<RecordColumn<Row>> columns()
{
    return {{ImportDialog::tr("What happens"),
             [](const Row& row) { return ImportText::outcome(*row); }, outcomeLook},
            {ImportDialog::tr("Key"), [](const Row& row) { return row->entry.key; }, {}},
            {ImportDialog::tr("Name"), [](const Row& row) { return row->entry.name; }, {}},
            {ImportDialog::tr("Type and data"),
             [](const Row& row) { return ImportText::data(row->entry); },
             {}},
            RecordColumn<Row>(ImportDialog::tr("Line"), [](const Row& row) {
                return QLocale().toString(row->entry.line);
            }).sortedBy([](const Row& row) { return SortKey::number(row->entry.line); })};
}

} // namespace

ImportDialog::ImportDialog(const QString& file, std::shared_ptr<const ImportPlan> plan,
                           QWidget* parent)
    : QDialog(parent), m_plan(std::move(plan)), m_statements(new RecordsModel<Row>(columns(), this))
{
    setWindowTitle(tr("Import %1").arg(file));
    auto* only = new QCheckBox(tr("&Only what is altered or refused"));
    connect(only, &QCheckBox::toggled, this, &ImportDialog::showStatements);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(ImportText::summary(*m_plan)));
    layout->addWidget(makeTable(), 1);
    layout->addWidget(only);
    layout->addWidget(makeButtons());
    const QSize wanted(fontMetrics().height() * 68, fontMetrics().lineSpacing() * 26);
    resize(parent ? wanted.boundedTo(parent->window()->size() * 0.95) : wanted);
    showStatements(false);
}

void ImportDialog::showStatements(bool onlyRemarkable)
{
    std::vector<Row> rows;
    for (const ImportPlan::Statement& statement : m_plan->statements()) {
        if (!onlyRemarkable || statement.outcome != Outcome::Done)
            rows.push_back(&statement);
    }
    m_statements->setRecords(std::move(rows));
}

QWidget* ImportDialog::makeTable()
{
    auto* table = new QTableView;
    table->setModel(m_statements);
    arrangeTable(*table);
    table->setAccessibleName(tr("Statements of the file"));
    fitColumns(
        *table,
        {QStringLiteral("[x] Refused: a sentence of some length that says why it cannot be set"),
         QStringLiteral("HKEY_CURRENT_USER\\Software"), QStringLiteral("Name of a value"),
         QStringLiteral("12345 (0x00003039)")});
    return table;
}

QWidget* ImportDialog::makeButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* ok = glowing(buttons->addButton(tr("I&mport"), QDialogButtonBox::AcceptRole));
    glowing(buttons->button(QDialogButtonBox::Cancel));
    const auto refused = static_cast<std::size_t>(m_plan->count(Outcome::Refused));
    ok->setEnabled(refused < m_plan->statements().size());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

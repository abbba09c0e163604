#include "pages/registry/ImportDialog.h"

#include "inspection/registry/ImportText.h"
#include "pages/registry/StoreBackup.h"
#include "regfile/CodePages.h"
#include "window/ColumnFit.h"
#include "window/GlyphIcon.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Outcome = ImportPlan::Outcome;
using Row = const ImportPlan::Statement*;

bool isRemarkable(const ImportPlan::Statement& statement)
{
    return statement.outcome != Outcome::Done || statement.isOverwriting() ||
           statement.isDeleting();
}

QVariant outcomeLook(const Row& row, int role)
{
    if (role != Qt::DecorationRole || !isRemarkable(*row))
        return {};
    return glyphIcon(row->outcome == Outcome::Refused ? Glyph::Error : Glyph::Warning);
}

std::vector<RecordColumn<Row>> columns()
{
    return {{ImportDialog::tr("What happens"),
             [](const Row& row) { return ImportText::outcome(*row); }, outcomeLook},
            {ImportDialog::tr("Key"), [](const Row& row) { return row->entry.key; }, {}},
            {ImportDialog::tr("Name"), [](const Row& row) { return row->entry.name; }, {}},
            {ImportDialog::tr("In the store now"), [](const Row& row) { return row->before; }, {}},
            {ImportDialog::tr("Type and data"),
             [](const Row& row) { return ImportText::data(row->entry); },
             {}},
            RecordColumn<Row>(ImportDialog::tr("Line"), [](const Row& row) {
                return QLocale().toString(row->entry.line);
            }).sortedBy([](const Row& row) { return SortKey::number(row->entry.line); })};
}

} // namespace

ImportDialog::ImportDialog(const QString& file, std::shared_ptr<const ImportPlan> plan,
                           QWidget* parent, const std::optional<Decoding>& decoding)
    : QDialog(parent),
      m_plan(std::move(plan)),
      m_statements(new RecordsModel<Row>(columns(), this)),
      m_backup(new BackupBox)
{
    setWindowTitle(tr("Import %1").arg(file));
    auto* only = new QCheckBox(tr("&Only what is altered, refused, overwritten or deleted"));
    connect(only, &QCheckBox::toggled, this, &ImportDialog::showStatements);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(ImportText::summary(*m_plan)));
    if (decoding)
        layout->addLayout(makeCodePages(*decoding));
    layout->addWidget(makeTable(), 1);
    layout->addWidget(only);
    layout->addWidget(m_backup);
    layout->addWidget(makeButtons(!decoding || decoding->fits));
    const QSize wanted(fontMetrics().height() * 68, fontMetrics().lineSpacing() * 26);
    resize(parent ? wanted.boundedTo(parent->window()->size() * 0.95) : wanted);
    showStatements(false);
}

bool ImportDialog::isBackupWanted() const
{
    return m_backup->isChecked();
}

QLayout* ImportDialog::makeCodePages(const Decoding& decoding)
{
    auto* choice = new QComboBox;
    for (const CodePage& each : offeredCodePages()) {
        choice->addItem(each.title, each.name);
        if (choice->currentIndex() <= 0 && isSameCodePage(each.name, decoding.codePage))
            choice->setCurrentIndex(choice->count() - 1);
    }
    choice->setAccessibleName(tr("Code page of the file"));
    auto* caption = new QLabel(tr("&Code page of this file of version 4:"));
    caption->setBuddy(choice);
    auto* line = new QHBoxLayout;
    line->addWidget(caption);
    line->addWidget(choice);
    if (!decoding.fits)
        line->addWidget(new QLabel(tr("Some of its bytes are no text in this one.")));
    line->addStretch();
    connect(choice, QOverload<int>::of(&QComboBox::activated), this,
            [this, choice] { chooseCodePage(choice->currentData().toByteArray()); });
    return line;
}

void ImportDialog::chooseCodePage(const QByteArray& codePage)
{
    reject();
    emit codePageChosen(codePage);
}

void ImportDialog::showStatements(bool onlyRemarkable)
{
    std::vector<Row> rows;
    for (const ImportPlan::Statement& statement : m_plan->statements()) {
        if (!onlyRemarkable || isRemarkable(statement))
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
    table->setTextElideMode(Qt::ElideMiddle);
    // Old and new are to be seen beside each other in a window of 800 pixels, too.
    ColumnFit& columns = ColumnFit::of(*table);
    columns.setSamples({QStringLiteral("[x] Refused: a sentence that says why"),
                        QStringLiteral("HKEY_CURRENT_USER\\S"), QStringLiteral("Name of one"),
                        QStringLiteral("REG_SZ the old text"),
                        QStringLiteral("REG_SZ the new text"), QStringLiteral("99,999")});
    columns.giveRestTo({1, 3, 4}); // the key, and what it held and will hold
    return table;
}

// A file whose text is not known for certain is not imported.
QWidget* ImportDialog::makeButtons(bool isReadable)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* ok = glowing(buttons->addButton(tr("I&mport"), QDialogButtonBox::AcceptRole));
    glowing(buttons->button(QDialogButtonBox::Cancel));
    const auto refused = static_cast<std::size_t>(m_plan->count(Outcome::Refused));
    ok->setEnabled(isReadable && refused < m_plan->statements().size());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

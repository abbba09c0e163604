#include "pages/registry/FindPane.h"

#include "inspection/registry/RegistryPath.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Hit = RegistrySearchJob::Hit;
using Report = PageContext::Report;

std::vector<RecordColumn<Hit>> columns()
{
    return {{FindPane::tr("Key"), [](const Hit& hit) { return RegistryPath::shown(hit.path); }, {}},
            {FindPane::tr("Name"), [](const Hit& hit) { return hit.name; }, {}},
            {FindPane::tr("Data"), [](const Hit& hit) { return hit.data; }, {}}};
}

QString outcome(const RegistrySearchJob& search, bool complete)
{
    const QString found = QLocale().toString(static_cast<qulonglong>(search.hits().size()));
    if (!complete)
        return FindPane::tr("The search was cancelled. Found so far: %1.").arg(found);
    if (search.isFull())
        return FindPane::tr("Showing the first %1 places; there may be more.").arg(found);
    return FindPane::tr("Found: %1.").arg(found);
}

} // namespace

FindPane::FindPane(PageContext& page, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_hits(new RecordsModel<Hit>(columns(), this)),
      m_text(new QLineEdit),
      m_inKeys(new QCheckBox(tr("&Keys"))),
      m_inNames(new QCheckBox(tr("Name&s"))),
      m_inData(new QCheckBox(tr("&Values"))),
      m_mindsCase(new QCheckBox(tr("Match &upper/lower case"))),
      m_wholeWords(new QCheckBox(tr("&Just whole words"))),
      m_table(new QTableView)
{
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setPlaceholderText(tr("Text to find"));
    for (QCheckBox* place : {m_inKeys, m_inNames, m_inData})
        place->setChecked(true);
    m_inKeys->setToolTip(tr("In the names of keys"));
    m_inNames->setToolTip(tr("In the names of values"));
    m_inData->setToolTip(tr("In the data of values"));
    makeTable();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLine());
    layout->addWidget(makeOptions());
    layout->addWidget(m_table, 1);
}

void FindPane::makeTable()
{
    m_table->setModel(m_hits);
    arrangeTable(*m_table);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setObjectName(QStringLiteral("found"));
    m_table->setAccessibleName(tr("Found"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    ColumnFit& columns = ColumnFit::of(*m_table);
    columns.setSamples(
        {QStringLiteral("HKEY_CURRENT_USER\\Maker"), QStringLiteral("Name of a value")});
    columns.giveRestTo({0, 2}); // the key and the data
    m_hint = new EmptyHint(m_table, tr("What is found is listed here; Enter goes to it."));
    connect(m_table, &QTableView::activated, this, &FindPane::choose);
}

QWidget* FindPane::makeLine()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* searchButton = glowing(new QPushButton(tr("Find no&w")));
    auto* closeButton = glowing(new QPushButton(tr("&Back")));
    layout->addWidget(m_text, 1);
    layout->addWidget(searchButton);
    layout->addWidget(closeButton);
    connect(m_text, &QLineEdit::returnPressed, this, &FindPane::search);
    connect(searchButton, &QPushButton::clicked, this, &FindPane::search);
    connect(closeButton, &QPushButton::clicked, this, &FindPane::close);
    return line;
}

QWidget* FindPane::makeOptions()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QCheckBox* option : {m_inKeys, m_inNames, m_inData, m_mindsCase, m_wholeWords})
        layout->addWidget(option);
    layout->addStretch();
    return line;
}

RegistrySearchJob::Query FindPane::query() const
{
    RegistrySearchJob::Query query;
    query.text = m_text->text();
    query.inKeys = m_inKeys->isChecked();
    query.inNames = m_inNames->isChecked();
    query.inData = m_inData->isChecked();
    query.mindsCase = m_mindsCase->isChecked();
    query.wholeWords = m_wholeWords->isChecked();
    return query;
}

void FindPane::open()
{
    show();
    m_text->setFocus();
    m_text->selectAll();
}

void FindPane::close()
{
    hide();
    emit closed();
}

void FindPane::search()
{
    const RegistrySearchJob::Query asked = query();
    if (asked.text.isEmpty())
        m_page.report(Report::Error, tr("Type the text to find first."));
    else if (!asked.inKeys && !asked.inNames && !asked.inData)
        m_page.report(Report::Error,
                      tr("Choose where to search: in keys, in names, in values, or in several."));
    else
        start();
}

void FindPane::start()
{
    m_asked = query();
    m_page.startJob(tr("Searching"), std::make_unique<RegistrySearchJob>(m_asked),
                    [this](RegistrySearchJob& job, bool complete) { showFound(job, complete); });
}

void FindPane::showFound(const RegistrySearchJob& search, bool complete)
{
    m_hits->setRecords(search.hits());
    m_isShown = false;
    m_hint->setText(tr("Nothing was found."));
    if (!search.hits().empty()) {
        m_table->setCurrentIndex(m_hits->index(0, 0));
        m_table->setFocus();
    }
    m_page.setStatus(outcome(search, complete));
}

void FindPane::choose(const QModelIndex& index)
{
    m_isShown = true;
    const Hit& hit = m_hits->record(index.row());
    emit chosen(hit.path, hit.name);
}

void FindPane::showNext()
{
    step(1);
}

void FindPane::showPrevious()
{
    step(-1);
}

void FindPane::step(int by)
{
    if (isVisible() && !(query() == m_asked))
        return search();
    const int count = m_hits->rowCount();
    if (count == 0)
        return open();
    const int from = m_isShown ? m_table->currentIndex().row() : qMin(-by, 0);
    const int row = (from + by + count) % count;
    m_table->setCurrentIndex(m_hits->index(row, 0));
    choose(m_table->currentIndex());
    m_page.setStatus(
        tr("Found place %L1 of %L2 (F3: next, Shift+F3: previous).").arg(row + 1).arg(count));
}

void FindPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

#include "pages/trace/OperationsPane.h"

#include "trace/reading/CallText.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/KeptPlace.h"
#include "window/ViewLook.h"

#include <QLocale>
#include <QTableView>
#include <QVBoxLayout>

namespace {

using Count = trace::Statistics::OperationCount;
using Column = RecordColumn<Count>;
using Number = qint64 Count::*;

SortKey keyOf(const Count& count, Number number)
{
    return SortKey::number(static_cast<double>(count.*number));
}

Column counted(const QString& title, Number number)
{
    return Column(title, [number](const Count& count) { return QLocale().toString(count.*number); })
        .sortedBy([number](const Count& count) { return keyOf(count, number); });
}

Column timed(const QString& title, Number number)
{
    return Column(title,
                  [number](const Count& count) {
                      return count.*number < 0 ? QString() : trace::CallText::time(count.*number);
                  })
        .sortedBy([number](const Count& count) { return keyOf(count, number); });
}

std::vector<Column> columns()
{
    return {{OperationsPane::tr("Operation"), [](const Count& count) { return count.operation; }},
            {OperationsPane::tr("Manager"), [](const Count& count) { return count.manager; }},
            counted(OperationsPane::tr("Calls"), &Count::calls),
            counted(OperationsPane::tr("Failures"), &Count::failures),
            counted(OperationsPane::tr("Never returned"), &Count::unreturned),
            timed(OperationsPane::tr("Time"), &Count::time),
            timed(OperationsPane::tr("Longest"), &Count::longest),
            {OperationsPane::tr("Remark"),
             [](const Count& count) {
                 return count.isFixed ? OperationsPane::tr("always the same result") : QString();
             },
             {},
             OperationsPane::tr("Operations that are not supported have the same result for all "
                                "arguments.")}};
}

} // namespace

OperationsPane::OperationsPane(QWidget* parent)
    : QWidget(parent),
      m_operations(new RecordsModel<Count>(columns(), this)),
      m_table(new QTableView)
{
    m_table->setModel(m_operations);
    m_table->setObjectName(QStringLiteral("operations"));
    m_table->setAccessibleName(tr("Operations"));
    arrangeTable(*m_table);
    const QString number = QStringLiteral("1,000,000");
    ColumnFit::of(*m_table).setSamples({QStringLiteral("GetPrivateProfileStringW"),
                                        QStringLiteral("directory"), number, number, number,
                                        QStringLiteral("999.9 us"), QStringLiteral("999.9 us")});
    new EmptyHint(m_table, tr("How often each operation was called, how often it failed, and how "
                              "long it took."));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    setFocusProxy(m_table);
}

void OperationsPane::setStatistics(const trace::Statistics& statistics)
{
    const KeptPlace place(*m_table, [this](int row) {
        return m_operations->record(row).manager + QLatin1Char('.') +
               m_operations->record(row).operation;
    });
    m_operations->setRecords(statistics.operations());
    place.restore();
}

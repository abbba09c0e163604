#include "pages/displays/MetricsPanel.h"

#include "platform/PlatformServicesImp.h"
#include "window/AnswerField.h"
#include "window/ViewLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <iterator>

namespace {

struct Metric
{
    int index;
    const char* name;
};

// What programs written for Windows ask for most.
constexpr Metric metrics[] = {
    {SM_CXFULLSCREEN, "SM_CXFULLSCREEN"},
    {SM_CYFULLSCREEN, "SM_CYFULLSCREEN"},
    {SM_CXSCREEN, "SM_CXSCREEN"},
    {SM_CYSCREEN, "SM_CYSCREEN"},
    {2, "SM_CXVSCROLL"},
    {3, "SM_CYHSCROLL"},
    {4, "SM_CYCAPTION"},
    {11, "SM_CXICON"},
    {12, "SM_CYICON"},
    {13, "SM_CXCURSOR"},
    {14, "SM_CYCURSOR"},
    {76, "SM_XVIRTUALSCREEN"},
    {77, "SM_YVIRTUALSCREEN"},
    {78, "SM_CXVIRTUALSCREEN"},
    {79, "SM_CYVIRTUALSCREEN"},
    {80, "SM_CMONITORS"},
};

constexpr int lastIndex = 65535;

int systemMetric(int index)
{
    return g_PlatformServices.resourceManager()->GetSystemMetrics(index);
}

} // namespace

MetricsPanel::MetricsPanel(QWidget* parent)
    : QWidget(parent), m_table(new QTableWidget(static_cast<int>(std::size(metrics)), 3))
{
    m_table->setHorizontalHeaderLabels({tr("Index"), tr("Name"), tr("Value")});
    m_table->setAccessibleName(tr("System metrics"));
    arrangeTable(*m_table);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addWidget(makeQuery());
    refresh();
}

QWidget* MetricsPanel::makeQuery()
{
    auto* place = new QWidget;
    m_index = new QSpinBox;
    m_index->setRange(0, lastIndex);
    m_index->setAccessibleName(tr("Index of a metric"));
    m_value = new AnswerField(tr("Value"), QStringLiteral("value"));
    auto* label = new QLabel(tr("&Any index:"));
    label->setBuddy(m_index);
    auto* layout = new QHBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_index);
    layout->addWidget(m_value, 1);
    connect(m_index, QOverload<int>::of(&QSpinBox::valueChanged), this, &MetricsPanel::ask);
    return place;
}

void MetricsPanel::refresh()
{
    for (int row = 0; row < m_table->rowCount(); ++row)
        fillRow(row);
    fitColumnsToContents(*m_table);
    ask();
}

void MetricsPanel::fillRow(int row)
{
    const Metric& entry = metrics[row];
    const int value = systemMetric(entry.index);
    m_table->setItem(row, 0, new QTableWidgetItem(QString::number(entry.index)));
    m_table->setItem(row, 1, new QTableWidgetItem(QString::fromLatin1(entry.name)));
    m_table->setItem(
        row, 2, new QTableWidgetItem(value != 0 ? QString::number(value) : tr("0 (not provided)")));
}

void MetricsPanel::ask()
{
    m_value->setAnswer(tr("GetSystemMetrics answers %1").arg(systemMetric(m_index->value())));
}

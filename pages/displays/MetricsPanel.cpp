#include "pages/displays/MetricsPanel.h"

#include "window/AnswerField.h"
#include "window/KeptPlace.h"
#include "window/ViewLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTableView>

#include <algorithm>

namespace {

constexpr int lastIndex = 65535;

std::vector<RecordColumn<SystemMetric>> columns()
{
    using Column = RecordColumn<SystemMetric>;
    return {Column(MetricsPanel::tr("Index"),
                   [](const auto& metric) { return QString::number(metric.index); })
                .sortedBy([](const auto& metric) { return SortKey::number(metric.index); }),
            {MetricsPanel::tr("Name"),
             [](const auto& metric) { return QString::fromLatin1(metric.name); }},
            Column(MetricsPanel::tr("Value"), &valueText).sortedBy([](const auto& metric) {
                return SortKey::number(metric.value);
            })};
}

} // namespace

MetricsPanel::MetricsPanel(QWidget* parent)
    : QWidget(parent), m_model(columns()), m_view(new QTableView)
{
    m_view->setModel(&m_model);
    m_view->setAccessibleName(tr("System metrics"));
    arrangeTable(*m_view);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addLayout(makeQuery());
    refresh();
}

QLayout* MetricsPanel::makeQuery()
{
    m_index = new QSpinBox;
    m_index->setRange(0, lastIndex);
    m_index->setAccessibleName(tr("Index of a metric"));
    m_value = new AnswerField(tr("Value"), QStringLiteral("value"));
    auto* label = new QLabel(tr("Any ind&ex:"));
    label->setBuddy(m_index);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_index);
    row->addWidget(m_value, 1);
    connect(m_index, QOverload<int>::of(&QSpinBox::valueChanged), this, &MetricsPanel::ask);
    return row;
}

void MetricsPanel::refresh()
{
    const KeptPlace place(*m_view,
                          [this](int row) { return QString::number(m_model.record(row).index); });
    m_model.setRecords(systemMetrics());
    place.restore();
    ask();
}

bool MetricsPanel::lookForChanges()
{
    const std::vector<SystemMetric> now = systemMetrics();
    const auto& shown = m_model.records();
    const auto isSame = [](const SystemMetric& one, const SystemMetric& other) {
        return one.index == other.index && one.value == other.value;
    };
    if (std::equal(now.begin(), now.end(), shown.begin(), shown.end(), isSame))
        return false;
    refresh();
    return true;
}

void MetricsPanel::ask()
{
    m_value->setAnswer(tr("GetSystemMetrics answers %1").arg(systemMetric(m_index->value())));
}

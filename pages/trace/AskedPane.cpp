#include "pages/trace/AskedPane.h"

#include "pages/trace/SubjectButton.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/KeptPlace.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QTableView>

#include <algorithm>
#include <iterator>

namespace {

using Asked = trace::Statistics::AskedCount;
using Kind = trace::AskedFor::Kind;
using Column = RecordColumn<Asked>;

QString kindName(const Asked& asked)
{
    switch (asked.kind) {
    case Kind::Key: return AskedPane::tr("Key");
    case Kind::Value: return AskedPane::tr("Value");
    case Kind::Entry: return AskedPane::tr("Entry of a profile");
    case Kind::File: break;
    }
    return AskedPane::tr("File");
}

Column counted(const QString& title, qint64 Asked::*number)
{
    return Column(title, [number](const Asked& asked) { return QLocale().toString(asked.*number); })
        .sortedBy([number](const Asked& asked) {
            return SortKey::number(static_cast<double>(asked.*number));
        });
}

std::vector<Column> columns()
{
    return {{AskedPane::tr("Kind"), &kindName},
            {AskedPane::tr("Place"), [](const Asked& asked) { return asked.place; }},
            {AskedPane::tr("Name"), [](const Asked& asked) { return asked.name; }},
            counted(AskedPane::tr("Asked for"), &Asked::asked),
            counted(AskedPane::tr("Absent"), &Asked::absent)};
}

} // namespace

AskedPane::AskedPane(QWidget* parent)
    : QWidget(parent),
      m_asked(new RecordsModel<Asked>(columns(), this)),
      m_table(new QTableView),
      m_withPresent(new QCheckBox(tr("Also w&hat was there")))
{
    makeTable();
    m_withPresent->setObjectName(QStringLiteral("withPresent"));
    m_show = new SubjectButton(*m_table, [this](int row) {
        const Asked& asked = m_asked->record(row);
        return trace::CallSubject::of(asked.kind, asked.place, asked.name);
    });
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_withPresent);
    foot->addStretch();
    foot->addWidget(m_show);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addLayout(foot);
    setFocusProxy(m_table);
    connect(m_withPresent, &QCheckBox::toggled, this, &AskedPane::showRows);
    connect(m_show, &SubjectButton::placeRequested, this, &AskedPane::placeRequested);
}

void AskedPane::makeTable()
{
    m_table->setModel(m_asked);
    m_table->setObjectName(QStringLiteral("asked"));
    m_table->setAccessibleName(tr("Asked for"));
    arrangeTable(*m_table);
    ColumnFit& columns = ColumnFit::of(*m_table);
    columns.setSamples({QString(), QStringLiteral("HKEY_CURRENT_USER\\Maker"),
                        QStringLiteral("Name of a value"), QStringLiteral("100,000"),
                        QStringLiteral("100,000")});
    columns.giveRestTo({1, 2});
    m_hint = new EmptyHint(m_table, tr("The keys, values, entries of profiles and files that a "
                                       "library asked for and did not find."));
}

void AskedPane::setStatistics(const trace::Statistics& statistics)
{
    m_all = statistics.asked();
    m_hint->setText(tr("Everything that was asked for was there."));
    showRows();
}

void AskedPane::showRows()
{
    const KeptPlace place(*m_table, [this](int row) {
        const Asked& asked = m_asked->record(row);
        return QString::number(static_cast<int>(asked.kind)) + asked.place + QLatin1Char('\n') +
               asked.name;
    });
    std::vector<Asked> rows;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(rows), [this](const Asked& asked) {
        return asked.absent > 0 || m_withPresent->isChecked();
    });
    m_asked->setRecords(std::move(rows));
    place.restore();
}

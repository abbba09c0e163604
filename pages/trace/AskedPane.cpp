#include "pages/trace/AskedPane.h"

#include "pages/trace/SubjectButton.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QTableView>

#include <utility>

namespace {

using Asked = trace::Statistics::AskedCount;
using Kind = trace::AskedFor::Kind;
using Column = RecordColumn<std::size_t>;

enum Columns
{
    KindColumn,
    PlaceColumn,
    NameColumn,
    AskedColumn,
    AbsentColumn
};

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

} // namespace

std::vector<Column> AskedPane::columns() const
{
    return {{tr("Kind"), [this](std::size_t place) { return kindName(asked(place)); }},
            {tr("Place"), [this](std::size_t place) { return asked(place).place; }},
            {tr("Name"), [this](std::size_t place) { return asked(place).name; }},
            counted(tr("Asked for"), &Asked::asked),
            counted(tr("Absent"), &Asked::absent)};
}

Column AskedPane::counted(const QString& title, qint64 Asked::*number) const
{
    return Column(title,
                  [this, number](std::size_t place) {
                      return QLocale().toString(asked(place).*number);
                  })
        .sortedBy([this, number](std::size_t place) {
            return SortKey::number(static_cast<double>(asked(place).*number));
        });
}

// The statistics may be others already when the rows of the former ones are painted.
Asked AskedPane::asked(std::size_t place) const
{
    const std::vector<Asked>& all = m_recording->analysis().statistics().askedInOrder();
    return place < all.size() ? all[place] : Asked();
}

AskedPane::AskedPane(QWidget* parent)
    : QWidget(parent),
      m_asked(new Places(columns(), this)),
      m_table(new QTableView),
      m_withPresent(new QCheckBox(tr("Also w&hat was there")))
{
    makeTable();
    m_withPresent->setObjectName(QStringLiteral("withPresent"));
    m_show = new SubjectButton(*m_table, [this](int row) {
        const Asked shown = asked(m_asked->record(row));
        return trace::CallSubject::of(shown.kind, shown.place, shown.name);
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
    m_asked->sort(AskedColumn, Qt::DescendingOrder);
    m_table->setObjectName(QStringLiteral("asked"));
    m_table->setAccessibleName(tr("Asked for"));
    arrangeTable(*m_table);
    ColumnFit& columns = ColumnFit::of(*m_table);
    columns.setSamples({QString(), QStringLiteral("HKEY_CURRENT_USER\\Maker"),
                        QStringLiteral("Name of a value"), QStringLiteral("100,000"),
                        QStringLiteral("100,000")});
    columns.giveRestTo({PlaceColumn, NameColumn});
    m_hint = new EmptyHint(m_table, tr("The keys, values, entries of profiles and files that a "
                                       "library asked for and did not find."));
}

void AskedPane::showAsked(std::shared_ptr<trace::OpenRecording> recording)
{
    m_asked->setRecords({});
    m_recording = std::move(recording);
    m_hint->setText(tr("Everything that was asked for was there."));
    showRows();
}

void AskedPane::showRows()
{
    std::vector<std::size_t> rows;
    if (!m_recording)
        return;
    const std::vector<Asked>& all = m_recording->analysis().statistics().askedInOrder();
    for (std::size_t place = 0; place < all.size(); ++place) {
        if (all[place].absent > 0 || m_withPresent->isChecked())
            rows.push_back(place);
    }
    m_asked->setRecords(std::move(rows));
}

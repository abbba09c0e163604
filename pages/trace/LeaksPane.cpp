#include "pages/trace/LeaksPane.h"

#include "pages/trace/SubjectButton.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/KeptPlace.h"
#include "window/ViewLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>

#include <algorithm>

namespace {

using Leak = trace::Leaks::Leak;
using Kind = trace::HandleTable::Kind;

QString kindName(const Leak& leak)
{
    switch (leak.handle.kind) {
    case Kind::Key: return LeaksPane::tr("Key");
    case Kind::Search: return LeaksPane::tr("Search");
    case Kind::Graphics: return LeaksPane::tr("Graphics object");
    case Kind::Array: break;
    }
    return LeaksPane::tr("Array");
}

std::vector<RecordColumn<Leak>> columns()
{
    using Column = RecordColumn<Leak>;
    return {{LeaksPane::tr("Kind"), &kindName},
            {LeaksPane::tr("Made for"), [](const Leak& leak) { return leak.handle.description; }},
            {LeaksPane::tr("Handle"), [](const Leak& leak) { return leak.handle.handle; }},
            Column(LeaksPane::tr("Call"),
                   [](const Leak& leak) { return QString::number(leak.handle.maker); })
                .sortedBy([](const Leak& leak) {
                    return SortKey::number(static_cast<double>(leak.handle.maker));
                }),
            {LeaksPane::tr("Operation"), [](const Leak& leak) { return leak.operation; }},
            {LeaksPane::tr("Caller"), [](const Leak& leak) { return leak.caller; }}};
}

bool isArray(const Leak& leak)
{
    return leak.handle.kind == Kind::Array;
}

} // namespace

LeaksPane::LeaksPane(QWidget* parent)
    : QWidget(parent),
      m_leaks(new RecordsModel<Leak>(columns(), this)),
      m_table(new QTableView),
      m_note(new QLabel)
{
    makeTable();
    m_show = new SubjectButton(
        *m_table, [this](int row) { return trace::CallSubject::of(m_leaks->record(row).handle); });
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_note, 1);
    foot->addWidget(m_show);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addLayout(foot);
    setFocusProxy(m_table);
    connect(m_show, &SubjectButton::placeRequested, this, &LeaksPane::placeRequested);
}

void LeaksPane::makeTable()
{
    m_table->setModel(m_leaks);
    m_table->setObjectName(QStringLiteral("leaks"));
    m_table->setAccessibleName(tr("Leaks"));
    arrangeTable(*m_table);
    ColumnFit& columns = ColumnFit::of(*m_table);
    columns.setSamples({QString(), QStringLiteral("HKEY_CURRENT_USER\\Maker"),
                        QStringLiteral("0x5581a0b0c0d0"), QStringLiteral("100000"),
                        QStringLiteral("RegOpenKeyExW"), QStringLiteral("libsample.so+0x1a2b")});
    columns.giveRestTo({1});
    m_hint = new EmptyHint(m_table, tr("What was opened or made and never given back, with the "
                                       "call that made it."));
}

void LeaksPane::setLeaks(const trace::Leaks& leaks, bool hasEnded)
{
    const KeptPlace place(*m_table, [this](int row) {
        return QString::number(m_leaks->record(row).handle.maker) + QLatin1Char(' ') +
               m_leaks->record(row).handle.handle;
    });
    m_leaks->setRecords(leaks.all());
    place.restore();
    m_hint->setText(tr("Everything that was opened or made has been given back."));
    const auto& all = m_leaks->records();
    QString note;
    if (!hasEnded)
        note = tr("The recording has no end: the program is still running, or was killed.");
    else if (std::any_of(all.begin(), all.end(), &isArray))
        note = tr("A recording does not show whether an array was freed.");
    m_note->setText(note);
}

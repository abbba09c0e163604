#include "pages/files/FoundTable.h"

#include "inspection/files/FileAttributes.h"
#include "inspection/files/FoundEntryText.h"
#include "window/ColumnFit.h"
#include "window/FaintText.h"
#include "window/MiddleElision.h"
#include "window/ViewLook.h"

#include <QAction>
#include <QHeaderView>
#include <QScopedValueRollback>

namespace {

using Column = RecordColumn<FoundEntry>;
using Look = Column::Look;
using Text = std::function<QString(const FoundEntry& entry)>;
using Number = std::function<double(const FoundDetails& details)>;

QVariant faint()
{
    return faintText();
}

// The same look, but faint while the rows are outdated.
Look dimmed(const std::shared_ptr<bool>& isOutdated, const Look& look)
{
    return [isOutdated, look](const FoundEntry& entry, int role) -> QVariant {
        if (role == Qt::ForegroundRole && *isOutdated)
            return faint();
        return look ? look(entry, role) : QVariant();
    };
}

// A column of what the service writes for some entries only; its tool tip shows the record's
// fields.
Column detail(const QString& title, const Text& text, const Text& raw, const Number& number)
{
    const auto look = [raw](const FoundEntry& entry, int role) -> QVariant {
        if (role == Qt::ToolTipRole)
            return plainToolTip(raw(entry));
        return role == Qt::ForegroundRole && !entry.details ? faint() : QVariant();
    };
    return Column(title, text, look).sortedBy([number](const FoundEntry& entry) {
        return entry.details ? SortKey::number(number(*entry.details)) : SortKey();
    });
}

Column time(const QString& title, FoundEntryText::Time field)
{
    return detail(
        title, [field](const FoundEntry& entry) { return FoundEntryText::time(entry, field); },
        [field](const FoundEntry& entry) { return FoundEntryText::rawTime(entry, field); },
        [field](const FoundDetails& details) { return (details.*field).dwLowDateTime; });
}

std::vector<Column> columns(const std::shared_ptr<bool>& isOutdated)
{
    std::vector<Column> all = {
        {FoundTable::tr("Name"), [](const FoundEntry& entry) { return entry.name; }},
        {FoundTable::tr("Attributes"),
         [](const FoundEntry& entry) { return attributesText(entry.attributes); }},
        detail(FoundTable::tr("Size"), &FoundEntryText::size, &FoundEntryText::rawSize,
               [](const FoundDetails& details) { return static_cast<double>(details.size); }),
        time(FoundTable::tr("Last written"), &FoundDetails::lastWrite),
        time(FoundTable::tr("Created"), &FoundDetails::creation),
        time(FoundTable::tr("Last accessed"), &FoundDetails::lastAccess)};
    for (Column& column : all)
        column.look = dimmed(isOutdated, column.look);
    return all;
}

} // namespace

FoundTable::FoundTable(QWidget* parent)
    : QTableView(parent),
      m_isOutdated(std::make_shared<bool>(false)),
      m_entries(new RecordsModel<FoundEntry>(columns(m_isOutdated), this))
{
    setObjectName(QStringLiteral("entries"));
    setAccessibleName(tr("Found entries"));
    setModel(m_entries);
    arrangeTable(*this);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const QString time = QStringLiteral("2000-00-00 00:00:00");
    ColumnFit& columns = ColumnFit::of(*this);
    columns.setSamples({QStringLiteral("Name of a file.ext"), QStringLiteral("0x10 DIRECTORY"),
                        QStringLiteral("999,999,999"), time, time, time});
    columns.giveRestTo({0, 1}); // what every entry has
    setItemDelegateForColumn(0, new MiddleElision(this));
    addActions();
    connect(this, &QTableView::activated, this, &FoundTable::openFolder);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FoundTable::tellChosen);
}

void FoundTable::addActions()
{
    auto* open = new QAction(tr("Open the folder"), this);
    connect(open, &QAction::triggered, this, [this] { openFolder(currentIndex()); });
    auto* parentFolder = new QAction(tr("Folder above"), this);
    parentFolder->setShortcuts({Qt::Key_Backspace, QKeySequence(QStringLiteral("Alt+Up"))});
    parentFolder->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(parentFolder, &QAction::triggered, this, &FoundTable::parentRequested);
    QWidget::addActions({open, parentFolder});
    const auto enable = [this, open] {
        const QModelIndex current = currentIndex();
        open->setEnabled(current.isValid() && (m_entries->record(current.row()).attributes &
                                               FILE_ATTRIBUTE_DIRECTORY) != 0);
    };
    enable();
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, open, enable);
    connect(m_entries, &QAbstractItemModel::modelReset, open, enable);
}

void FoundTable::clear()
{
    m_entries->setRecords({});
}

void FoundTable::append(std::vector<FoundEntry> entries)
{
    m_entries->append(std::move(entries));
}

void FoundTable::replace(std::vector<FoundEntry> entries)
{
    const KeptPlace kept = place();
    m_entries->setRecords(std::move(entries));
    restore(kept);
}

KeptPlace FoundTable::place()
{
    return KeptPlace(*this, [this](int row) { return m_entries->record(row).name; });
}

void FoundTable::restore(const KeptPlace& place)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    place.restore();
}

void FoundTable::choose(const QString& name)
{
    for (int row = 0; !name.isEmpty() && row < m_entries->rowCount(); ++row) {
        if (m_entries->record(row).name == name)
            setCurrentIndex(m_entries->index(row, 0));
    }
}

void FoundTable::setOutdated(bool outdated)
{
    if (std::exchange(*m_isOutdated, outdated) != outdated)
        viewport()->update();
}

void FoundTable::tellChosen(const QModelIndex& current)
{
    if (current.isValid() && !m_isRestoring)
        emit chosen(m_entries->record(current.row()).name);
}

void FoundTable::openFolder(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const FoundEntry& entry = m_entries->record(index.row());
    if ((entry.attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        emit folderOpened(entry.name);
}

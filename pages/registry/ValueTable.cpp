#include "pages/registry/ValueTable.h"

#include "inspection/registry/RegistryListing.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

ValueTable::ValueTable(QWidget* parent) : QTableView(parent), m_values(new RegistryValueModel(this))
{
    setModel(m_values);
    arrangeTable(*this);
    setObjectName(QStringLiteral("values"));
    setAccessibleName(tr("Values"));
    setContextMenuPolicy(Qt::ActionsContextMenu);
    ColumnFit& columns = ColumnFit::of(*this);
    columns.setSamples({QStringLiteral("[x] Value name"), QStringLiteral("REG_QWORD"),
                        QStringLiteral("1234 (0x4d2)")});
    columns.giveRestTo({RegistryValueModel::Data, RegistryValueModel::Raw});
    m_hint = new EmptyHint(this, QString());
    const auto tellSelected = [this] { emit selectedChanged(selectionModel()->hasSelection()); };
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, tellSelected);
    connect(m_values, &QAbstractItemModel::modelReset, this, tellSelected);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (current())
            emit chosen(*current());
    });
}

void ValueTable::showKey(const QString& path, const RegistryIndex& names)
{
    m_values->setPath(path, names);
    m_hint->setText(path.isEmpty() && !hasSubKeys(names, path)
                        ? tr("The registry is empty. Create a key with New, or import a registry "
                             "file.")
                        : tr("This key holds no values. Choose a key below it, or create a value "
                             "with New."));
}

void ValueTable::choose(const QString& name)
{
    const int row = name.isEmpty() ? -1 : m_values->rowOf(name);
    if (row >= 0)
        setCurrentIndex(m_values->index(row, 0));
}

const ListedValue* ValueTable::current() const
{
    return currentIndex().isValid() ? &m_values->record(currentIndex().row()) : nullptr;
}

void ValueTable::refreshCurrent()
{
    m_values->refresh(currentIndex().row());
}

std::vector<ListedValue> ValueTable::selected() const
{
    std::vector<ListedValue> values;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        values.push_back(m_values->record(row.row()));
    return values;
}

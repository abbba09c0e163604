#include "window/TableTools.h"

#include "window/MenuKey.h"
#include "window/SortableTableModel.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <algorithm>

namespace {

std::vector<int> selectedRows(const QTableView& table)
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

// Another model's "sort" may do nothing, and nobody can tell.
bool isSortable(const QAbstractItemModel* model)
{
    return qobject_cast<const SortableTableModel*>(model) ||
           qobject_cast<const QSortFilterProxyModel*>(model);
}

} // namespace

TableTools::TableTools(QTableView* table) : QObject(table), m_table(table)
{
    QHeaderView* header = table->horizontalHeader();
    header->setSectionsClickable(isSortable(table->model()));
    connect(header, &QHeaderView::sectionClicked, this, &TableTools::sortByNext);
    connect(&m_runner, &JobRunner::finished, this, &TableTools::endCopying);
    const QAbstractItemModel* model = table->model();
    connect(model, &QAbstractItemModel::modelAboutToBeReset, &m_runner, &JobRunner::cancel);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, &m_runner, &JobRunner::cancel);
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, &m_runner, &JobRunner::cancel);
    new MenuKey(table);
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
}

void TableTools::copy(TableCopyJob::Header header)
{
    std::vector<int> rows = selectedRows(*m_table);
    if (rows.empty())
        return;
    m_runner.cancel();
    m_copying = std::make_unique<TableCopyJob>(*m_table->model(), std::move(rows), header);
    if (m_runner.start(*m_copying))
        endCopying();
}

void TableTools::endCopying()
{
    QGuiApplication::clipboard()->setText(m_copying->text());
    m_copying.reset();
}

void TableTools::sortByNext(int column)
{
    if (column != m_column)
        sortBy(column, Qt::AscendingOrder);
    else if (m_order == Qt::AscendingOrder)
        sortBy(column, Qt::DescendingOrder);
    else
        sortBy(-1, Qt::AscendingOrder);
}

void TableTools::sortBy(int column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    // Shown only where there is one: it takes room from the titles of all columns.
    m_table->horizontalHeader()->setSortIndicatorShown(column >= 0);
    m_table->horizontalHeader()->setSortIndicator(column, order);
    m_table->model()->sort(column, order);
    if (m_table->currentIndex().isValid())
        m_table->scrollTo(m_table->currentIndex());
}

bool TableTools::takesContextMenu() const
{
    return m_table->contextMenuPolicy() == Qt::DefaultContextMenu ||
           m_table->contextMenuPolicy() == Qt::ActionsContextMenu;
}

bool TableTools::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched == m_table)
        return takesKey(static_cast<const QKeyEvent&>(*event));
    if (event->type() != QEvent::ContextMenu || !takesContextMenu())
        return QObject::eventFilter(watched, event);
    const auto& request = static_cast<const QContextMenuEvent&>(*event);
    showMenu(request.reason() == QContextMenuEvent::Keyboard ? currentPlace()
                                                             : request.globalPos());
    return true;
}

// Where an action of the page has this key, it does not come here.
bool TableTools::takesKey(const QKeyEvent& press)
{
    if (!press.matches(QKeySequence::Copy))
        return false;
    copy(TableCopyJob::WithoutHeader);
    return true;
}

void TableTools::showMenu(const QPoint& place)
{
    auto* menu = new QMenu(m_table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(m_table->actions());
    menu->addSeparator();
    addCopy(menu, tr("Copy"), TableCopyJob::WithoutHeader);
    addCopy(menu, tr("Copy with header"), TableCopyJob::WithHeader);
    if (isSortable(m_table->model()))
        menu->addMenu(makeSortMenu(menu));
    menu->popup(place);
}

void TableTools::addCopy(QMenu* menu, const QString& text, TableCopyJob::Header header)
{
    QAction* action = menu->addAction(text);
    action->setEnabled(m_table->selectionModel()->hasSelection());
    if (header == TableCopyJob::WithoutHeader && !isCopyTaken())
        action->setShortcut(QKeySequence::Copy); // to be seen
    connect(action, &QAction::triggered, this, [this, header] { copy(header); });
}

bool TableTools::isCopyTaken() const
{
    const QList<QAction*> actions = m_table->actions();
    return std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
        return action->shortcuts().contains(QKeySequence::Copy);
    });
}

QMenu* TableTools::makeSortMenu(QMenu* menu)
{
    auto* sorting = new QMenu(tr("Sort by"), menu);
    const QAbstractItemModel& model = *m_table->model();
    for (int column = 0; column < model.columnCount(); ++column)
        addSorting(sorting, model.headerData(column, Qt::Horizontal).toString(), column);
    sorting->addSeparator();
    addSorting(sorting, tr("Original order"), -1);
    return sorting;
}

// A column is chosen as by a click on its header: once more turns its order round.
void TableTools::addSorting(QMenu* menu, const QString& title, int column)
{
    if (title.isEmpty())
        return;
    QAction* action = menu->addAction(title);
    action->setCheckable(true);
    action->setChecked(column == m_column);
    connect(action, &QAction::triggered, this, [this, column] {
        if (column < 0)
            sortBy(-1, Qt::AscendingOrder);
        else
            sortByNext(column);
    });
}

QPoint TableTools::currentPlace() const
{
    const QWidget& viewport = *m_table->viewport();
    const QRect cell = m_table->visualRect(m_table->currentIndex()) & viewport.rect();
    return viewport.mapToGlobal(cell.isEmpty() ? viewport.rect().topLeft() : cell.bottomLeft());
}

#include "pages/registry/RegistryActions.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/KeyTree.h"
#include "pages/registry/RegistryClipboard.h"
#include "pages/registry/RegistryEditor.h"
#include "pages/registry/RegistryHistory.h"
#include "pages/registry/RegistryRemover.h"
#include "pages/registry/RegistryRenamer.h"
#include "pages/registry/RegistryTransfer.h"
#include "pages/registry/StoreGate.h"
#include "pages/registry/ValueTable.h"
#include "window/MenuKey.h"
#include "window/Page.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QMenu>
#include <QPushButton>

#include <algorithm>

namespace {

using Report = PageContext::Report;

// A push button that does what an action does, and is enabled when it is.
QPushButton* buttonFor(QAction* action, const QString& text)
{
    auto* button = glowing(new QPushButton(text));
    button->setEnabled(action->isEnabled());
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button,
                     [button, action] { button->setEnabled(action->isEnabled()); });
    return button;
}

QAction* separator(QObject* parent)
{
    auto* action = new QAction(parent);
    action->setSeparator(true);
    return action;
}

// What is reported when values have gone meanwhile; `name` is that of the first.
QString goneText(const QString& name, std::size_t count, const QString& path)
{
    const QString key = RegistryPath::shown(path);
    if (count == 1)
        return RegistryActions::tr("\"%1\" in %2 is no longer there.").arg(name, key);
    return RegistryActions::tr("%1 of the selected values in %2 are no longer there.")
        .arg(QLocale().toString(qulonglong{count}), key);
}

} // namespace

RegistryActions::RegistryActions(PageContext& page, StoreWatch& watch, KeyTree& tree,
                                 ValueTable& table, QWidget* window)
    : QObject(window),
      m_page(page),
      m_tree(tree),
      m_table(table),
      m_window(window),
      m_gate(new StoreGate(
          page, watch, [this](const auto& exported) { m_transfer->askExport({}, exported); },
          window)),
      m_history(new RegistryHistory(
          page, [this](const auto& write) { m_gate->pass(write); }, window)),
      m_editor(new RegistryEditor(page, *m_gate, *m_history, window)),
      m_renamer(new RegistryRenamer(page, *m_gate, *m_history, window)),
      m_remover(new RegistryRemover(page, *m_gate, *m_history, window)),
      m_transfer(new RegistryTransfer(page, *m_gate, *m_history, window)),
      m_clipboard(new RegistryClipboard(page, window))
{
    makeActions();
    enable(false);
    connectParts();
    new MenuKey(&m_tree);
}

void RegistryActions::connectParts()
{
    connect(qApp, &QApplication::focusChanged, this, &RegistryActions::rememberView);
    connect(&m_table, &ValueTable::selectedChanged, this, &RegistryActions::enable);
    connect(&m_table, &QTableView::activated, this,
            [this] { change(&RegistryActions::editValue); });
    connect(m_history, &RegistryHistory::changed, this, &RegistryActions::changed);
    connect(m_history, &RegistryHistory::outdated, this, &RegistryActions::outdated);
    connect(m_editor, &RegistryEditor::changed, this, &RegistryActions::changed);
    connect(m_remover, &RegistryRemover::changed, this,
            [this](const QString& path) { emit changed(path, {}); });
    connect(m_transfer, &RegistryTransfer::changed, this, &RegistryActions::outdated);
}

void RegistryActions::makeActions()
{
    m_newMenu = makeNewMenu();
    makeKeyActions();
    makeValueActions();
    m_search = make(tr("Search..."), &RegistryActions::searchRequested);
    m_import = makeChange(tr("Import..."), &RegistryActions::importFile);
    m_export = make(tr("Export key..."), &RegistryActions::exportKey);
    fillMenus();
}

// F2 alone is free in the tree: a key has nothing else to be edited.
void RegistryActions::makeKeyActions()
{
    const QKeySequence shiftF2(QStringLiteral("Shift+F2"));
    m_renameKey = makeChange(tr("Rename key..."), &RegistryActions::renameKey);
    m_renameKey->setShortcuts({QKeySequence(Qt::Key_F2), shiftF2});
    m_removeKey = makeChange(tr("Delete key"), &RegistryActions::removeKey);
    m_removeKey->setShortcut(Qt::Key_Delete);
    m_copyPath = make(tr("Copy path"), &RegistryActions::copyPath);
    m_copyPath->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    m_copyKey = make(tr("Copy key as .reg"), &RegistryActions::copyKey);
}

void RegistryActions::makeValueActions()
{
    m_edit = makeChange(tr("Edit value"), &RegistryActions::editValue);
    m_edit->setShortcut(Qt::Key_F2);
    m_renameValue = makeChange(tr("Rename value..."), &RegistryActions::renameValue);
    m_renameValue->setShortcut(QKeySequence(QStringLiteral("Shift+F2")));
    m_removeValue = makeChange(tr("Delete value"), &RegistryActions::removeValues);
    m_removeValue->setShortcut(Qt::Key_Delete);
    m_copyData = make(tr("Copy data"), &RegistryActions::copyData);
    m_copyData->setShortcut(QKeySequence::Copy);
    m_copyValues = make(tr("Copy as .reg"), &RegistryActions::copyValues);
}

// A view's actions are its context menu. What concerns the whole key is in both menus.
void RegistryActions::fillMenus()
{
    QAction* create = m_newMenu->menuAction();
    m_tree.addActions({create, m_renameKey, m_removeKey, separator(this), m_copyPath, m_copyKey,
                       separator(this), m_search, m_import, m_export});
    m_table.addActions({create, m_edit, m_renameValue, m_removeValue, separator(this), m_copyData,
                        m_copyValues, separator(this), m_copyPath, m_search, m_import, m_export});
}

QAction* RegistryActions::make(const QString& text)
{
    auto* action = new QAction(text, this);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    return action;
}

QAction* RegistryActions::make(const QString& text, void (RegistryActions::*slot)())
{
    QAction* action = make(text);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

QAction* RegistryActions::makeChange(const QString& text, void (RegistryActions::*slot)())
{
    QAction* action = make(text);
    connect(action, &QAction::triggered, this, [this, slot] { change(slot); });
    return action;
}

void RegistryActions::change(void (RegistryActions::*slot)())
{
    m_gate->pass([this, slot] { (this->*slot)(); });
}

QMenu* RegistryActions::makeNewMenu()
{
    auto* menu = new QMenu(tr("New"), m_window);
    connect(menu->addAction(tr("&Key...")), &QAction::triggered, this,
            [this] { m_gate->pass([this] { m_editor->newKey(m_tree.path()); }); });
    menu->addSeparator();
    const std::pair<QString, unsigned int> types[] = {
        {tr("&String (REG_SZ)..."), REG_SZ},
        {tr("&Number (REG_DWORD)..."), REG_DWORD},
        {tr("&Large number (REG_QWORD)..."), REG_QWORD},
        {tr("&Binary (REG_BINARY)..."), REG_BINARY}};
    for (const auto& [text, number] : types) {
        connect(menu->addAction(text), &QAction::triggered, this, [this, type = number] {
            m_gate->pass([this, type] { m_editor->newValue(m_tree.path(), type); });
        });
    }
    return menu;
}

QPushButton* RegistryActions::makeCopyButton() const
{
    return buttonFor(m_copyPath, tr("Cop&y path"));
}

QLayout* RegistryActions::makeButtons()
{
    auto* create = glowing(new QPushButton(tr("&New")));
    create->setMenu(m_newMenu);
    auto* remove = glowing(new QPushButton(tr("Dele&te")));
    connect(remove, &QPushButton::clicked, this,
            [this] { change(&RegistryActions::removeChosen); });
    QPushButton* search = buttonFor(m_search, tr("Searc&h..."));
    search->setToolTip(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
    auto* line = new QHBoxLayout;
    line->addWidget(create);
    line->addWidget(buttonFor(m_edit, tr("&Edit...")));
    line->addWidget(remove);
    line->addStretch();
    line->addWidget(search);
    line->addWidget(buttonFor(m_import, tr("I&mport...")));
    line->addWidget(buttonFor(m_export, tr("E&xport...")));
    return line;
}

void RegistryActions::enable(bool anySelected)
{
    for (QAction* action : {m_edit, m_renameValue, m_removeValue, m_copyData, m_copyValues})
        action->setEnabled(anySelected);
}

void RegistryActions::rememberView(const QWidget* /*before*/, QWidget* now)
{
    if (now == &m_tree || now == &m_table)
        m_lastView = now;
}

void RegistryActions::editValue()
{
    if (isValueThere())
        m_editor->editValue(m_tree.path(), *m_table.current());
}

void RegistryActions::renameValue()
{
    if (isValueThere())
        m_renamer->renameValue(m_tree.path(), *m_table.current());
}

bool RegistryActions::isValueThere()
{
    if (!m_table.current())
        return false;
    m_table.refreshCurrent();
    const ListedValue& value = *m_table.current();
    const bool there = value.isThere();
    if (!there)
        reportGone(goneText(value.name(), 1, m_tree.path()));
    return there;
}

// The button takes the keyboard from the view in which something was chosen. A row stays selected
// when the keyboard goes back to the tree.
void RegistryActions::removeChosen()
{
    if (m_lastView != &m_tree && m_table.selectionModel()->hasSelection())
        removeValues();
    else
        removeKey();
}

void RegistryActions::removeValues()
{
    std::vector<ListedValue> values = m_table.selected();
    const auto gone = std::stable_partition(
        values.begin(), values.end(), [](const ListedValue& value) { return value.isThere(); });
    const QString key = m_tree.path();
    if (gone != values.end())
        reportGone(goneText(gone->name(), static_cast<std::size_t>(values.end() - gone), key));
    values.erase(gone, values.end());
    m_remover->removeValues(key, values);
}

void RegistryActions::removeKey()
{
    if (isKeyThere())
        m_remover->removeKey(m_tree.path());
}

void RegistryActions::renameKey()
{
    if (isKeyThere())
        m_renamer->renameKey(m_tree.path());
}

void RegistryActions::copyPath()
{
    m_clipboard->copyPath(m_tree.path());
}

void RegistryActions::copyKey()
{
    if (isKeyThere())
        m_clipboard->copyKey(m_tree.path());
}

void RegistryActions::copyData()
{
    m_clipboard->copyData(m_table.selected());
}

void RegistryActions::copyValues()
{
    m_clipboard->copyValues(m_table.selected());
}

void RegistryActions::exportKey()
{
    const QString path = m_tree.path();
    if (isRedirected(path))
        m_page.report(Report::Error, redirectedKeyText(path));
    else if (isKeyThere())
        m_transfer->askExport(path);
}

void RegistryActions::importFile()
{
    m_transfer->askImport();
}

void RegistryActions::importFrom(const QString& file)
{
    m_gate->pass([this, file] { m_transfer->importFile(file); });
}

// A host library may have deleted what the page still shows.
bool RegistryActions::isKeyThere()
{
    const bool there = isRegistryKey(m_tree.path());
    if (!there)
        reportGone(tr("%1 is no longer there.").arg(RegistryPath::shown(m_tree.path())));
    return there;
}

void RegistryActions::reportGone(const QString& what)
{
    emit outdated();
    m_page.report(Report::Warning, what);
}

#include "pages/registry/RegistryActions.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/KeyTree.h"
#include "pages/registry/RegistryEditor.h"
#include "pages/registry/RegistryRemover.h"
#include "pages/registry/RegistryTransfer.h"
#include "pages/registry/ValueTable.h"
#include "window/Page.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
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

RegistryActions::RegistryActions(PageContext& page, KeyTree& tree, ValueTable& table,
                                 QWidget* window)
    : QObject(window),
      m_page(page),
      m_tree(tree),
      m_table(table),
      m_window(window),
      m_editor(new RegistryEditor(page, window)),
      m_remover(new RegistryRemover(page, window)),
      m_transfer(new RegistryTransfer(page, window))
{
    makeActions();
    enable(false);
    connect(qApp, &QApplication::focusChanged, this, &RegistryActions::rememberView);
    connect(&m_table, &ValueTable::selectedChanged, this, &RegistryActions::enable);
    connect(&m_table, &QTableView::activated, this, &RegistryActions::editValue);
    connect(m_editor, &RegistryEditor::changed, this, &RegistryActions::changed);
    connect(m_remover, &RegistryRemover::changed, this,
            [this](const QString& path) { emit changed(path, {}); });
    connect(m_transfer, &RegistryTransfer::changed, this, &RegistryActions::outdated);
}

void RegistryActions::makeActions()
{
    m_newMenu = makeNewMenu();
    m_tree.addAction(m_newMenu->menuAction());
    m_table.addAction(m_newMenu->menuAction());
    add(m_tree, tr("Delete key"), &RegistryActions::removeKey)->setShortcut(Qt::Key_Delete);
    m_copyPath = add(m_tree, tr("Copy path"), &RegistryActions::copyPath);
    m_copyPath->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    m_export = add(m_tree, tr("Export key..."), &RegistryActions::exportKey);
    m_import = add(m_tree, tr("Import..."), &RegistryActions::importFile);
    m_edit = add(m_table, tr("Edit value"), &RegistryActions::editValue);
    m_edit->setShortcut(Qt::Key_F2);
    m_removeValue = add(m_table, tr("Delete value"), &RegistryActions::removeValues);
    m_removeValue->setShortcut(Qt::Key_Delete);
    m_copyData = add(m_table, tr("Copy data"), &RegistryActions::copyData);
    m_copyData->setShortcut(QKeySequence::Copy);
}

QAction* RegistryActions::add(QWidget& view, const QString& text, void (RegistryActions::*slot)())
{
    auto* action = new QAction(text, this);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, slot);
    view.addAction(action);
    return action;
}

QMenu* RegistryActions::makeNewMenu()
{
    auto* menu = new QMenu(tr("New"), m_window);
    connect(menu->addAction(tr("&Key...")), &QAction::triggered, this,
            [this] { m_editor->newKey(m_tree.path()); });
    menu->addSeparator();
    const std::pair<QString, unsigned int> types[] = {
        {tr("&String (REG_SZ)..."), REG_SZ},
        {tr("&Number (REG_DWORD)..."), REG_DWORD},
        {tr("&Large number (REG_QWORD)..."), REG_QWORD},
        {tr("&Binary (REG_BINARY)..."), REG_BINARY}};
    for (const auto& [text, number] : types) {
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, type = number] { m_editor->newValue(m_tree.path(), type); });
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
    connect(remove, &QPushButton::clicked, this, &RegistryActions::removeChosen);
    auto* search = glowing(new QPushButton(tr("&Search...")));
    search->setToolTip(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
    connect(search, &QPushButton::clicked, this, &RegistryActions::searchRequested);
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
    for (QAction* action : {m_edit, m_removeValue, m_copyData})
        action->setEnabled(anySelected);
}

void RegistryActions::rememberView(const QWidget* /*before*/, QWidget* now)
{
    if (now == &m_tree || now == &m_table)
        m_lastView = now;
}

void RegistryActions::editValue()
{
    if (!m_table.current())
        return;
    m_table.refreshCurrent();
    const ListedValue& value = *m_table.current();
    if (value.isThere())
        m_editor->editValue(m_tree.path(), value);
    else
        reportGone(goneText(value.name(), 1, m_tree.path()));
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

void RegistryActions::copyPath()
{
    const QString shown = RegistryPath::shown(m_tree.path());
    QGuiApplication::clipboard()->setText(shown);
    m_page.setStatus(tr("Copied %1.").arg(shown));
}

void RegistryActions::copyData()
{
    if (m_table.current())
        QGuiApplication::clipboard()->setText(m_table.current()->wholeData());
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
    m_transfer->importFile(file);
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

#include "pages/registry/RegistryPage.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreFault.h"
#include "inspection/registry/StoreOpeningJob.h"
#include "inspection/registry/TypedAddress.h"
#include "pages/registry/FindPane.h"
#include "pages/registry/RegistryEditor.h"
#include "pages/registry/RegistryTransfer.h"
#include "pages/registry/RegistryTreeModel.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace {

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

QString goneText(const QStringList& values, const QString& path)
{
    const QString key = RegistryPath::shown(path);
    if (values.size() == 1)
        return RegistryPage::tr("\"%1\" in %2 is no longer there.").arg(values.first(), key);
    return RegistryPage::tr("%1 of the selected values in %2 are no longer there.")
        .arg(QLocale().toString(values.size()), key);
}

} // namespace

RegistryPage::RegistryPage(QWidget* parent)
    : Page(parent),
      m_keys(new RegistryTreeModel(this)),
      m_values(new RegistryValueModel(this)),
      m_editor(new RegistryEditor(this)),
      m_transfer(new RegistryTransfer(this)),
      m_address(new QLineEdit),
      m_tree(new QTreeView),
      m_table(new QTableView),
      m_find(new FindPane)
{
    makeTree();
    makeTable();
    makeActions();
    auto* views = new QSplitter(Qt::Horizontal);
    views->addWidget(m_tree);
    views->addWidget(m_table);
    views->setStretchFactor(0, 1);
    views->setStretchFactor(1, 3);
    views->setChildrenCollapsible(false);
    auto* halves = new QSplitter(Qt::Vertical);
    halves->addWidget(views);
    halves->addWidget(m_find);
    halves->setStretchFactor(0, 2);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    m_find->hide();
    body()->addLayout(makeAddressLine());
    body()->addLayout(makeButtons());
    body()->addWidget(halves, 1);
    setFocusProxy(m_tree);
    connectParts();
    m_tree->setCurrentIndex(m_keys->rootItem());
    if (!RawStore::exists())
        reportStore();
}

// The keyboard leaves the views when they are destroyed, which is after this part of the page.
RegistryPage::~RegistryPage()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void RegistryPage::makeTree()
{
    m_tree->setModel(m_keys);
    m_tree->setObjectName(QStringLiteral("keys"));
    m_tree->setAccessibleName(tr("Keys"));
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_tree->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
}

void RegistryPage::makeTable()
{
    m_table->setModel(m_values);
    arrangeTable(*m_table);
    m_table->setObjectName(QStringLiteral("values"));
    m_table->setAccessibleName(tr("Values"));
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    fitColumns(*m_table, {QStringLiteral("[x] Value name"), QStringLiteral("REG_QWORD")});
    new ColumnBalancer(m_table, RegistryValueModel::Data, QStringLiteral("1234 (0x000004d2)"));
    m_hint = new EmptyHint(m_table, QString());
}

QAction* RegistryPage::action(const QString& text, void (RegistryPage::*slot)())
{
    auto* made = new QAction(text, this);
    made->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(made, &QAction::triggered, this, slot);
    return made;
}

void RegistryPage::makeActions()
{
    m_newMenu = makeNewMenu();
    m_edit = action(tr("Edit value"), &RegistryPage::editValue);
    m_edit->setShortcut(Qt::Key_F2);
    m_removeValue = action(tr("Delete value"), &RegistryPage::removeSelected);
    m_removeValue->setShortcut(Qt::Key_Delete);
    m_removeKey = action(tr("Delete key"), &RegistryPage::removeKey);
    m_removeKey->setShortcut(Qt::Key_Delete);
    m_copyPath = action(tr("Copy path"), &RegistryPage::copyPath);
    m_copyPath->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    m_copyValue = action(tr("Copy data"), &RegistryPage::copyValue);
    m_copyValue->setShortcut(QKeySequence::Copy);
    m_export = action(tr("Export key..."), &RegistryPage::exportKey);
    m_import = action(tr("Import..."), &RegistryPage::importFile);
    m_tree->addActions({m_newMenu->menuAction(), m_removeKey, m_copyPath, m_export, m_import});
    m_table->addActions({m_newMenu->menuAction(), m_edit, m_removeValue, m_copyValue});
}

QMenu* RegistryPage::makeNewMenu()
{
    auto* menu = new QMenu(tr("New"), this);
    connect(menu->addAction(tr("&Key...")), &QAction::triggered, this,
            [this] { m_editor->newKey(path()); });
    menu->addSeparator();
    const struct
    {
        QString text;
        unsigned int type;
    } types[] = {{tr("&String (REG_SZ)..."), REG_SZ},
                 {tr("&Number (REG_DWORD)..."), REG_DWORD},
                 {tr("&Large number (REG_QWORD)..."), REG_QWORD},
                 {tr("&Binary (REG_BINARY)..."), REG_BINARY}};
    for (const auto& row : types) {
        const unsigned int type = row.type;
        connect(menu->addAction(row.text), &QAction::triggered, this,
                [this, type] { m_editor->newValue(path(), type); });
    }
    return menu;
}

QLayout* RegistryPage::makeAddressLine()
{
    auto* caption = new QLabel(tr("&Go to:"));
    caption->setBuddy(m_address);
    m_address->setObjectName(QStringLiteral("address"));
    m_address->setAccessibleName(tr("Path of the key"));
    auto* line = new QHBoxLayout;
    line->addWidget(caption);
    line->addWidget(m_address, 1);
    line->addWidget(buttonFor(m_copyPath, tr("Cop&y path")));
    return line;
}

QLayout* RegistryPage::makeButtons()
{
    auto* create = glowing(new QPushButton(tr("&New")));
    create->setMenu(m_newMenu);
    auto* remove = glowing(new QPushButton(tr("Dele&te")));
    connect(remove, &QPushButton::clicked, this, &RegistryPage::removeChosen);
    auto* search = glowing(new QPushButton(tr("&Search...")));
    search->setToolTip(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText));
    connect(search, &QPushButton::clicked, this, &RegistryPage::find);
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

void RegistryPage::connectParts()
{
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &RegistryPage::showKey);
    connect(qApp, &QApplication::focusChanged, this, &RegistryPage::rememberView);
    connect(m_tree, &QTreeView::clicked, m_table, &QTableView::clearSelection);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RegistryPage::enableActions);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &RegistryPage::showRemark);
    connect(m_values, &QAbstractItemModel::modelReset, this, &RegistryPage::enableActions);
    connect(m_table, &QTableView::activated, this, &RegistryPage::editValue);
    connect(m_address, &QLineEdit::returnPressed, this, &RegistryPage::openAddress);
    connect(m_editor, &RegistryEditor::changed, this, &RegistryPage::afterChange);
    connect(m_transfer, &RegistryTransfer::changed, this, &RegistryPage::refresh);
    connect(m_find, &FindPane::searchRequested, this, &RegistryPage::search);
    connect(m_find, &FindPane::refused, this,
            [this](const QString& why) { report(Report::Error, why); });
    connect(m_find, &FindPane::chosen, this, &RegistryPage::goTo);
    connect(m_find, &FindPane::closed, m_tree, QOverload<>::of(&QWidget::setFocus));
    connect(&m_openingRunner, &JobRunner::finished, this, &RegistryPage::refreshEntered);
}

QString RegistryPage::path() const
{
    return m_keys->path(m_tree->currentIndex());
}

void RegistryPage::showKey(const QModelIndex& current)
{
    if (!m_read)
        return;
    m_values->setPath(m_keys->path(current), m_keys->names());
    m_address->setText(RegistryPath::shown(m_values->path()));
    m_hint->setText(current == m_keys->rootItem() && !m_keys->hasChildren(current)
                        ? tr("The registry is empty. Create a key with New, or import a registry "
                             "file.")
                        : tr("This key holds no values. Choose a key below it, or create a value "
                             "with New."));
    if (isRedirected(path()))
        return setStatus(redirectedKeyText(path()));
    const QLocale locale;
    setStatus(tr("Values: %1. Sub-keys: %2.")
                  .arg(locale.toString(m_values->rowCount()),
                       locale.toString(m_keys->subKeyCount(current))));
}

void RegistryPage::showRemark(const QModelIndex& current)
{
    if (!current.isValid())
        return;
    const RegistryValueModel::Value& value = m_values->value(current.row());
    if (!value.remark.isEmpty())
        setStatus(tr("%1: %2").arg(value.name, value.remark));
}

void RegistryPage::reportStore()
{
    const QString fault = storeFault();
    if (!fault.isEmpty())
        report(Report::Warning, fault);
    else if (!RawStore::exists())
        report(Report::Error, tr("The host library has set up no settings store: every call to the "
                                 "registry fails."));
}

void RegistryPage::enableActions()
{
    const bool selected = m_table->selectionModel()->hasSelection();
    m_edit->setEnabled(selected);
    m_removeValue->setEnabled(selected);
    m_copyValue->setEnabled(selected);
}

void RegistryPage::refresh()
{
    const QModelIndex value = m_table->currentIndex();
    const QString name = value.isValid() ? m_values->nameAndPlace(value.row()).name : QString();
    m_keys->refresh();
    if (!std::exchange(m_read, true))
        m_tree->expand(m_keys->rootItem());
    showKey(m_tree->currentIndex());
    selectValue(name);
}

void RegistryPage::selectValue(const QString& name)
{
    const int row = name.isEmpty() ? -1 : m_values->rowOf(name);
    if (row >= 0)
        m_table->setCurrentIndex(m_values->index(row, 0));
}

// A job that runs ends with a refresh where it has changed anything.
void RegistryPage::entered()
{
    if (isBusy())
        return;
    if (m_read)
        refreshEntered();
    else
        readFirst();
}

// What is amiss with the store comes after what is told of the key.
void RegistryPage::refreshEntered()
{
    refresh();
    reportStore();
}

// A large store takes its time when it is listed first: the page is painted before, and between.
void RegistryPage::readFirst()
{
    const auto later = [this](auto work) {
        QMetaObject::invokeMethod(this, work, Qt::QueuedConnection);
    };
    later([this, later] {
        if (m_openingRunner.isRunning())
            return;
        m_opening = std::make_unique<StoreOpeningJob>();
        if (m_openingRunner.start(*m_opening))
            later([this] { refreshEntered(); });
    });
}

void RegistryPage::find()
{
    m_find->open();
}

void RegistryPage::goTo(const QString& path, const QString& name)
{
    const QModelIndex key = m_keys->find(path);
    m_tree->setCurrentIndex(key);
    m_tree->scrollTo(key);
    selectValue(name);
    if (m_table->currentIndex().isValid())
        m_table->setFocus();
}

void RegistryPage::openAddress()
{
    const QStringList paths = pathsOfAddress(m_address->text());
    const auto open = [this](const QString& wanted) { return openKey(wanted); };
    if (std::any_of(paths.begin(), paths.end(), open))
        return;
    if (paths.isEmpty()) {
        report(Report::Error,
               tr("%1 begins with none of the four root keys.").arg(m_address->text()));
        return;
    }
    goTo(paths.last());
    report(Report::Warning, tr("There is no key %1.").arg(RegistryPath::shown(paths.last())));
}

// Shown anew where it is selected already: an address that led nowhere may stand in the line.
bool RegistryPage::openKey(const QString& wanted)
{
    const QModelIndex key = m_keys->find(wanted);
    if (m_keys->path(key) != wanted)
        return false;
    if (key == m_tree->currentIndex())
        showKey(key);
    goTo(wanted);
    m_tree->setFocus();
    return true;
}

// A host library may have deleted what the page still shows.
bool RegistryPage::isKeyThere()
{
    const QString shown = RegistryPath::shown(path());
    const bool there = isRegistryKey(path());
    if (!there)
        reportGone(tr("%1 is no longer there.").arg(shown));
    return there;
}

void RegistryPage::reportGone(const QString& what)
{
    refresh();
    report(Report::Warning, what);
}

void RegistryPage::editValue()
{
    const int row = m_table->currentIndex().row();
    if (row < 0)
        return;
    if (m_values->refresh(row))
        m_editor->editValue(path(), m_values->value(row));
    else
        reportGone(goneText({m_values->nameAndPlace(row).name}, path()));
}

void RegistryPage::rememberView(const QWidget* /*before*/, QWidget* now)
{
    if (now == m_tree || now == m_table)
        m_lastView = now;
}

// The button takes the keyboard from the view in which something was chosen. A row stays selected
// when the keyboard goes back to the tree.
void RegistryPage::removeChosen()
{
    if (m_lastView != m_tree && m_table->selectionModel()->hasSelection())
        removeSelected();
    else
        removeKey();
}

void RegistryPage::removeSelected()
{
    std::vector<RegistryValueModel::Value> values;
    QStringList gone;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& index : rows) {
        const RegistryValueModel::Value value = m_values->nameAndPlace(index.row());
        if (m_values->isThere(index.row()))
            values.push_back(value);
        else
            gone.append(value.name);
    }
    const QString key = path();
    if (!gone.isEmpty())
        reportGone(goneText(gone, key));
    m_editor->removeValues(key, values);
}

void RegistryPage::removeKey()
{
    if (isKeyThere())
        m_editor->removeKey(path());
}

void RegistryPage::copyPath()
{
    QGuiApplication::clipboard()->setText(RegistryPath::shown(path()));
    setStatus(tr("Copied %1.").arg(RegistryPath::shown(path())));
}

void RegistryPage::copyValue()
{
    const int row = m_table->currentIndex().row();
    if (row < 0)
        return;
    const RegistryValueModel::Value& value = m_values->value(row);
    const RegistryReading& reading = value.reading;
    QGuiApplication::clipboard()->setText(
        reading.readable ? RegistryFormat::editable(reading.type, reading.data) : value.remark);
}

void RegistryPage::exportKey()
{
    if (isRedirected(path()))
        report(Report::Error, redirectedKeyText(path()));
    else if (isKeyThere())
        m_transfer->askExport(path());
}

void RegistryPage::importFile()
{
    m_transfer->askImport();
}

void RegistryPage::search(const QString& text, bool inNames, bool inData)
{
    const auto finished = [this](const RegistrySearchJob& search, bool complete) {
        m_find->setHits(search.hits());
        const QString found = QLocale().toString(static_cast<qint64>(search.hits().size()));
        if (!complete)
            setStatus(tr("The search was cancelled. Found so far: %1.").arg(found));
        else if (search.isFull())
            setStatus(tr("Showing the first %1 places; there may be more.").arg(found));
        else
            setStatus(tr("Found: %1.").arg(found));
    };
    startJob<RegistrySearchJob>(
        tr("Searching"), std::make_unique<RegistrySearchJob>(text, QString(), inNames, inData),
        finished);
}

void RegistryPage::afterChange(const QString& changedPath, const QString& name)
{
    m_keys->refresh();
    goTo(changedPath);
    showKey(m_tree->currentIndex());
    selectValue(name);
}

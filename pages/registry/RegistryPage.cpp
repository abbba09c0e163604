#include "pages/registry/RegistryPage.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreFault.h"
#include "inspection/registry/StoreOpeningJob.h"
#include "inspection/registry/TypedAddress.h"
#include "pages/registry/AddressBar.h"
#include "pages/registry/FindPane.h"
#include "pages/registry/KeyTree.h"
#include "pages/registry/RegistryActions.h"
#include "pages/registry/StoreFollower.h"
#include "pages/registry/ValueTable.h"
#include "window/KeptPlace.h"
#include "window/ShownText.h"

#include <QAction>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

// Two widgets with a line between them that can be dragged, which share the space as given.
QSplitter* splitter(Qt::Orientation orientation, QWidget* first, int firstShare, QWidget* second,
                    int secondShare)
{
    auto* made = new QSplitter(orientation);
    made->addWidget(first);
    made->addWidget(second);
    made->setStretchFactor(0, firstShare);
    made->setStretchFactor(1, secondShare);
    made->setChildrenCollapsible(false);
    return made;
}

// A view with a sentence below it, and what that means in its tool tip.
QWidget* withNote(QWidget* view, const QString& text, const QString& toolTip)
{
    auto* note = new QLabel(text);
    note->setToolTip(plainToolTip(toolTip));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    auto* made = new QWidget;
    auto* layout = new QVBoxLayout(made);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view, 1);
    layout->addWidget(note);
    return made;
}

} // namespace

RegistryPage::RegistryPage(QWidget* parent)
    : Page(parent),
      m_tree(new KeyTree),
      m_table(new ValueTable),
      m_address(new AddressBar(*this, m_tree->keys())),
      m_actions(new RegistryActions(*this, m_watch, *m_tree, *m_table, this)),
      m_find(new FindPane(*this)),
      m_follower(new StoreFollower(*this, m_watch, this))
{
    m_address->addButton(m_actions->makeCopyButton());
    body()->addWidget(m_address);
    body()->addLayout(m_actions->makeButtons());
    QWidget* keys = withNote(m_tree, tr("All four root keys are one here."),
                             tr("What is set under one of HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, "
                                "HKEY_LOCAL_MACHINE and HKEY_USERS is found under each of them."));
    QSplitter* views = splitter(Qt::Horizontal, keys, 1, m_table, 3);
    body()->addWidget(splitter(Qt::Vertical, views, 2, m_find, 1), 1);
    m_find->hide();
    setFocusProxy(m_tree);
    connectParts();
    addSearchKeys();
    if (!RawStore::exists())
        reportStore();
}

RegistryPage::~RegistryPage() = default;

void RegistryPage::connectParts()
{
    connect(m_tree, &KeyTree::chosen, this, &RegistryPage::showKey);
    connect(m_tree, &QTreeView::clicked, m_table, &QTableView::clearSelection);
    connect(m_table, &ValueTable::chosen, this, &RegistryPage::showRemark);
    connect(m_address, &AddressBar::entered, this, &RegistryPage::openKey);
    connect(m_address, &AddressBar::missed, this, [this](const QString& path) { goTo(path); });
    connect(m_actions, &RegistryActions::changed, this, &RegistryPage::showChange);
    connect(m_actions, &RegistryActions::outdated, this, &RegistryPage::refresh);
    connect(m_actions, &RegistryActions::searchRequested, this, &RegistryPage::find);
    connect(m_find, &FindPane::chosen, this, &RegistryPage::goTo);
    connect(m_find, &FindPane::closed, m_tree, QOverload<>::of(&QWidget::setFocus));
    connect(m_follower, &StoreFollower::changed, this, &RegistryPage::follow);
    connect(&m_openingRunner, &JobRunner::finished, this, &RegistryPage::refreshEntered);
}

void RegistryPage::addSearchKeys()
{
    const std::pair<QKeySequence, void (FindPane::*)()> keys[] = {
        {QStringLiteral("F3"), &FindPane::showNext},
        {QStringLiteral("Shift+F3"), &FindPane::showPrevious}};
    for (const auto& [key, slot] : keys) {
        auto* action = new QAction(this);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, m_find, slot);
        addAction(action);
    }
}

void RegistryPage::showKey()
{
    if (!m_isListed)
        return;
    const QString path = m_tree->path();
    m_table->showKey(path, m_tree->keys().names());
    m_address->setPath(path);
    if (isRedirected(path))
        setStatus(redirectedKeyText(path));
    else
        showCounts();
}

void RegistryPage::showCounts()
{
    const QLocale locale;
    m_counts = tr("Values: %1. Sub-keys: %2.")
                   .arg(locale.toString(m_table->count()),
                        locale.toString(m_tree->keys().subKeyCount(m_tree->currentIndex())));
    setStatus(m_counts);
}

void RegistryPage::showRemark(const ListedValue& value)
{
    if (!value.remark().isEmpty() && !m_isFollowing)
        setStatus(tr("%1: %2").arg(value.name(), value.remark()));
}

void RegistryPage::refresh()
{
    const QString name = m_table->current() ? m_table->current()->name() : QString();
    readKeys();
    if (!std::exchange(m_isListed, true))
        m_tree->expand(m_tree->keys().rootItem());
    showKey();
    m_table->choose(name);
}

void RegistryPage::readKeys()
{
    m_tree->keys().refresh();
    m_follower->markRead();
    markRead();
}

void RegistryPage::lookForChanges()
{
    if (m_isListed)
        m_follower->look();
}

// As a refresh that nobody has asked for: what is selected, typed and told stays. Where the key has
// gone, the tree has selected another one by itself, which is shown already.
void RegistryPage::follow()
{
    m_isFollowing = true;
    const QString path = m_tree->path();
    const bool hadCounts = statusText() == m_counts;
    readKeys();
    if (m_tree->path() == path) {
        const KeptPlace place(*m_table, [this](int row) {
            return m_table->model()->index(row, 0).data().toString();
        });
        m_table->showKey(path, m_tree->keys().names());
        place.restore();
    }
    if (hadCounts)
        showCounts();
    m_isFollowing = false;
}

// A store that is still being opened is gone to later.
void RegistryPage::showPlace(const PlaceRequest& request)
{
    m_wanted = request;
    if (m_isListed)
        goToWanted();
}

void RegistryPage::goToWanted()
{
    const PlaceRequest wanted = std::exchange(m_wanted, {});
    const QStringList paths = pathsOfAddress(wanted.place);
    if (paths.isEmpty())
        return;
    goTo(paths.first(), wanted.names.value(0));
    if (m_tree->path() != paths.first())
        report(Report::Warning, tr("There is no key %1: the nearest one above it is shown.")
                                    .arg(RegistryPath::shown(paths.first())));
    else if (!wanted.names.isEmpty() && !m_table->current())
        report(Report::Warning, tr("The key has no value %1.").arg(wanted.names.first()));
}

void RegistryPage::openFile(const QString& path)
{
    m_actions->importFrom(path);
}

// While a job runs nothing is read: a job that changes anything ends with a refresh.
void RegistryPage::entered()
{
    if (isBusy())
        return;
    if (m_isListed)
        refreshEntered();
    else
        openStore();
}

// A fault of the store is reported last, because showing the key sets the status too.
void RegistryPage::refreshEntered()
{
    refresh();
    reportStore();
    m_follower->look();
    if (!m_wanted.place.isEmpty())
        goToWanted();
}

// Opening a large store takes long. It begins after the page has been painted, and the page is
// painted between its steps.
void RegistryPage::openStore()
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

void RegistryPage::reportStore()
{
    const QString fault = storeFault();
    if (!fault.isEmpty())
        report(Report::Warning, fault);
    else if (!RawStore::exists())
        report(Report::Error, tr("The host library has set up no settings store: every call to the "
                                 "registry fails."));
}

void RegistryPage::find()
{
    m_find->open();
}

void RegistryPage::goTo(const QString& path, const QString& name)
{
    m_tree->choose(path);
    m_table->choose(name);
    if (m_table->current())
        m_table->setFocus();
}

// The key may be selected already while the address of one that is not there stands in the line:
// that address is replaced too.
void RegistryPage::openKey(const QString& path)
{
    if (path == m_tree->path())
        showKey();
    goTo(path);
    m_tree->setFocus();
}

// Selecting another key shows it; a large one takes too long to be shown twice.
void RegistryPage::showChange(const QString& path, const QString& name)
{
    readKeys();
    const QString before = m_tree->path();
    goTo(path);
    if (m_tree->path() == before)
        showKey();
    m_table->choose(name);
}

#include "pages/profiles/ProfileReadingsPane.h"

#include "inspection/profiles/ProfileAskingJob.h"
#include "pages/profiles/ProfileReadingQueue.h"
#include "pages/profiles/ProfileReadingsModel.h"
#include "pages/profiles/ProfileTable.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/Page.h"

#include <QAction>
#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int soonMilliseconds = 30; // a wheel that is still turning moves on before

} // namespace

ProfileReadingsPane::ProfileReadingsPane(PageContext& page, QWidget* parent)
    : QWidget(parent),
      m_page(page),
      m_model(new ProfileReadingsModel(this)),
      m_table(
          makeProfileTable(m_model, tr("Readings of both families"), QStringLiteral("readings"))),
      m_hint(new EmptyHint(m_table, QString())),
      m_onlyDifferences(new QCheckBox(tr("Onl&y differences"))),
      m_next(glowing(new QPushButton(tr("Next difference")))),
      m_all(glowing(new QPushButton(tr("Read all val&ues")))),
      m_queue(new ProfileReadingQueue(this))
{
    makeTable();
    addEditAction();
    addDeleteAction();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addLayout(makeButtonRow());
    connect(m_queue, &ProfileReadingQueue::answered, this, &ProfileReadingsPane::answered);
    m_soon.setSingleShot(true);
    m_soon.setInterval(soonMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &ProfileReadingsPane::askForRowsInView);
    updateButtons();
}

void ProfileReadingsPane::makeTable()
{
    ColumnFit& columns = ColumnFit::of(*m_table);
    columns.setSamples({QStringLiteral("Name of section"), QStringLiteral("Name of a key"),
                        QStringLiteral("255.255.255.0"), QStringLiteral("≠"),
                        QStringLiteral("255.255.255.0")});
    columns.giveRestTo({ProfileColumns::WideColumn, ProfileColumns::NarrowColumn});
    updateHint();
    m_table->viewport()->installEventFilter(this);
    connect(m_model, &QAbstractItemModel::layoutChanged, &m_soon, QOverload<>::of(&QTimer::start));
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, &m_soon,
            QOverload<>::of(&QTimer::start));
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                m_soon.start();
                if (current.isValid())
                    emit nameChosen(m_model->nameAt(current.row()));
            });
}

void ProfileReadingsPane::addEditAction()
{
    auto* edit = new QAction(tr("Edit value"), m_table);
    edit->setShortcut(Qt::Key_F2);
    edit->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_table->addAction(edit);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(edit, &QAction::triggered, this, &ProfileReadingsPane::editRequested);
    connect(m_table, &QTableView::activated, this, &ProfileReadingsPane::editRequested);
}

void ProfileReadingsPane::addDeleteAction()
{
    auto* remove = new QAction(tr("Delete key"), m_table);
    remove->setShortcut(Qt::Key_Delete);
    remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_table->addAction(remove);
    connect(remove, &QAction::triggered, this, [this] {
        if (chosenName() >= 0)
            emit deletionRequested(chosenName());
    });
}

QLayout* ProfileReadingsPane::makeButtonRow()
{
    m_onlyDifferences->setObjectName(QStringLiteral("onlyDifferences"));
    m_next->setObjectName(QStringLiteral("nextDifference"));
    m_next->setToolTip(QKeySequence(Qt::Key_F8).toString(QKeySequence::NativeText));
    m_all->setObjectName(QStringLiteral("readAll"));
    m_all->setToolTip(tr("Asks the calls of both families for every value of a large file, one "
                         "after the other. Otherwise those in view are asked for."));
    auto* row = new QHBoxLayout;
    row->addWidget(m_onlyDifferences);
    row->addWidget(m_next);
    row->addStretch(1);
    row->addWidget(m_all);
    connect(m_onlyDifferences, &QCheckBox::toggled, this,
            &ProfileReadingsPane::showOnlyDifferences);
    connect(m_next, &QPushButton::clicked, this, &ProfileReadingsPane::nextDifference);
    connect(m_all, &QPushButton::clicked, this, &ProfileReadingsPane::readAll);
    return row;
}

void ProfileReadingsPane::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    const auto& former = m_model->document();
    if (!former || former->path() != document->path())
        m_onlyDifferences->setChecked(false);
    m_queue->setDocument(document);
    m_model->setDocument(std::move(document));
    updateButtons();
    updateHint();
    m_soon.start();
}

void ProfileReadingsPane::setReading(int name, const ProfileReading& reading)
{
    m_model->setReading(name, reading);
    if (m_model->readCount() == m_model->nameCount())
        updateButtons();
}

ProfileReading ProfileReadingsPane::reading(int name) const
{
    return m_model->reading(name);
}

void ProfileReadingsPane::updateButtons()
{
    m_all->setEnabled(m_model->readCount() < m_model->nameCount());
    m_next->setEnabled(m_model->nameCount() > 0);
}

void ProfileReadingsPane::updateHint()
{
    const auto& document = m_model->document();
    if (document && !document->restriction().isEmpty()) {
        m_hint->setText(document->restriction());
        return;
    }
    m_hint->setText(m_onlyDifferences->isChecked()
                        ? tr("Of the values that have been asked for, none is read differently.")
                        : tr("What the wide and the narrow calls read stands here side by side."));
}

int ProfileReadingsPane::chosenName() const
{
    const int row = chosenRow(*m_table);
    return row < 0 ? -1 : m_model->nameAt(row);
}

void ProfileReadingsPane::chooseName(int name)
{
    const QSignalBlocker blocker(this);
    const int row = name < 0 ? -1 : m_model->rowOf(name);
    if (row >= 0)
        m_table->selectRow(row);
    else
        m_table->setCurrentIndex({});
}

QString ProfileReadingsPane::counts() const
{
    const QLocale locale;
    const QString all = locale.toString(m_model->nameCount());
    const QString differences = locale.toString(m_model->differenceCount());
    if (m_model->readCount() == m_model->nameCount())
        return tr("Values: %1. Read differently: %2.").arg(all, differences);
    return tr("Values: %1. Asked for so far: %2. Read differently: %3.")
        .arg(all, locale.toString(m_model->readCount()), differences);
}

int ProfileReadingsPane::scrollPosition() const
{
    return scrolledRows(*m_table);
}

void ProfileReadingsPane::scrollTo(int position)
{
    scrollRows(*m_table, position);
}

bool ProfileReadingsPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        m_soon.start();
    return QWidget::eventFilter(watched, event);
}

// The rows of a profile that is not large are asked for by the job that reads it.
void ProfileReadingsPane::askForRowsInView()
{
    if (!m_model->document() || !isVisible())
        return;
    if (m_page.isBusy())
        m_soon.start();
    else
        m_queue->ask(namesInView());
}

// The chosen one first.
std::vector<int> ProfileReadingsPane::namesInView() const
{
    std::vector<int> names;
    const auto add = [&](int row) {
        if (row >= 0 && !m_model->isRead(m_model->nameAt(row)))
            names.push_back(m_model->nameAt(row));
    };
    add(chosenRow(*m_table));
    const int first = m_table->rowAt(0);
    const int last = m_table->rowAt(m_table->viewport()->height() - 1);
    const int end = last < 0 ? m_model->rowCount() : last + 1;
    for (int row = first; row >= 0 && row < end; ++row)
        add(row);
    return names;
}

// Ends where the file has changed meanwhile, and another document is shown.
std::unique_ptr<ProfileAskingJob> ProfileReadingsPane::makeAsking(std::function<int()> next)
{
    const auto isShown = [this, document = m_model->document()] {
        return m_model->document() == document;
    };
    return std::make_unique<ProfileAskingJob>(
        m_model->document(), [isShown, next = std::move(next)] { return isShown() ? next() : -1; },
        [this, isShown](int name, const ProfileReading& reading) {
            if (isShown())
                emit answered(name, reading);
        });
}

void ProfileReadingsPane::readAll()
{
    const auto next = [this, name = 0]() mutable {
        while (name < m_model->nameCount() && m_model->isRead(name))
            ++name;
        return name < m_model->nameCount() ? name : -1;
    };
    if (!m_model->document() || m_page.isBusy())
        return;
    m_page.startJob(tr("Asking both families for all values"), makeAsking(next),
                    [this](const ProfileAskingJob&, bool complete) {
                        arrangeAgain();
                        if (complete)
                            m_page.report(PageContext::Report::Info, counts());
                        else
                            m_page.report(PageContext::Report::Warning,
                                          tr("Stopped. %1").arg(counts()));
                    });
}

void ProfileReadingsPane::arrangeAgain()
{
    m_model->arrangeAgain();
}

void ProfileReadingsPane::showOnlyDifferences(bool only)
{
    const int chosen = chosenName();
    m_model->showOnlyDifferences(only);
    updateHint();
    chooseName(chosen);
    m_soon.start();
    if (only && m_model->readCount() < m_model->nameCount())
        readAll();
    else if (only)
        m_page.setStatus(counts());
}

void ProfileReadingsPane::nextDifference()
{
    if (m_model->document() && !m_page.isBusy())
        findDifference(chosenName(), false);
}

// From a name on to the end, and then again from the first one on.
void ProfileReadingsPane::findDifference(int from, bool isAgain)
{
    const auto at = std::make_shared<int>(from);
    const auto next = [this, at] {
        const int candidate = m_model->nextCandidate(*at);
        if (candidate < 0 || m_model->isRead(candidate))
            return -1;
        *at = candidate - 1; // it is a candidate again when it has been read
        return candidate;
    };
    m_page.startJob(tr("Looking for a difference"), makeAsking(next),
                    [this, at, isAgain](const ProfileAskingJob&, bool complete) {
                        const int found = complete ? m_model->nextCandidate(*at) : -1;
                        if (found >= 0 && !m_model->isRead(found)) // of another document
                            findDifference(found - 1, isAgain);
                        else if (found >= 0)
                            m_table->selectRow(m_model->rowOf(found));
                        else if (complete && !isAgain)
                            findDifference(-1, true);
                        else
                            m_page.setStatus(complete ? tr("The families read all values alike.")
                                                      : tr("Stopped. %1").arg(counts()));
                    });
}

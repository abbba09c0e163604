#include "pages/trace/CallFilterBar.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

constexpr int fewestCharacters = 8; // of a name that is chosen

bool isOffered(const QComboBox& box, const QStringList& names)
{
    int offered = 1;
    while (offered < box.count() && box.itemText(offered) == names.value(offered - 1))
        ++offered;
    return offered == box.count() && offered == names.size() + 1;
}

// The first choice stands for all. A list that the user may have open stays where nothing is new.
void offer(QComboBox& box, QStringList names)
{
    names.sort();
    names.removeDuplicates();
    if (isOffered(box, names))
        return;
    const QString chosen = box.currentIndex() > 0 ? box.currentText() : QString();
    const QSignalBlocker blocker(box);
    while (box.count() > 1)
        box.removeItem(1);
    box.addItems(names);
    box.setCurrentIndex(chosen.isEmpty() ? 0 : qMax(0, names.indexOf(chosen) + 1));
}

} // namespace

CallFilterBar::CallFilterBar(QWidget* parent)
    : QWidget(parent),
      m_library(makeChoice(tr("Library"), tr("All libraries"), "library")),
      m_manager(makeChoice(tr("Manager"), tr("All managers"), "manager")),
      m_operation(makeChoice(tr("Operation"), tr("All operations"), "operation")),
      m_failures(new QCheckBox(tr("Failures onl&y"))),
      m_text(new QLineEdit),
      m_count(new QLabel)
{
    m_failures->setObjectName(QStringLiteral("failures"));
    m_failures->setToolTip(tr("Calls that failed, and calls that never returned"));
    m_text->setObjectName(QStringLiteral("text"));
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setPlaceholderText(tr("Text to find"));
    m_text->setClearButtonEnabled(true);
    m_count->setObjectName(QStringLiteral("count"));
    m_count->setTextFormat(Qt::PlainText);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeChoices());
    layout->addLayout(makeText());
    connect(m_failures, &QCheckBox::toggled, this, &CallFilterBar::changed);
    connect(m_text, &QLineEdit::textChanged, this, &CallFilterBar::changed);
    setFocusProxy(m_text);
}

QComboBox* CallFilterBar::makeChoice(const QString& name, const QString& all,
                                     const char* objectName)
{
    auto* box = new QComboBox;
    box->setObjectName(QLatin1String(objectName));
    box->setAccessibleName(name);
    box->view()->setAccessibleName(name);
    box->addItem(all);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(fewestCharacters);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CallFilterBar::changed);
    return box;
}

QLayout* CallFilterBar::makeChoices()
{
    auto* row = new QHBoxLayout;
    for (QComboBox* box : {m_library, m_manager, m_operation})
        row->addWidget(box, 1);
    row->addWidget(m_failures);
    return row;
}

QLayout* CallFilterBar::makeText()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_text, 1);
    row->addWidget(m_count);
    return row;
}

void CallFilterBar::setChoices(const trace::Statistics& statistics)
{
    QStringList managers;
    QStringList operations;
    for (const trace::Statistics::OperationCount& count : statistics.operations()) {
        if (!count.manager.isEmpty()) // procedures of the library have none
            managers += count.manager;
        operations += count.operation;
    }
    offer(*m_library, statistics.libraries());
    offer(*m_manager, managers);
    offer(*m_operation, operations);
}

trace::CallSearch::Query CallFilterBar::query() const
{
    trace::CallSearch::Query query;
    if (m_library->currentIndex() > 0)
        query.filter.setLibrary(m_library->currentText());
    if (m_manager->currentIndex() > 0)
        query.filter.setManager(m_manager->currentText());
    if (m_operation->currentIndex() > 0)
        query.filter.setOperation(m_operation->currentText());
    query.filter.setFailuresOnly(m_failures->isChecked());
    query.text = m_text->text();
    return query;
}

void CallFilterBar::showCount(const QString& text)
{
    m_count->setText(text);
}

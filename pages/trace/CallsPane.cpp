#include "pages/trace/CallsPane.h"

#include "pages/trace/CallFilterBar.h"
#include "pages/trace/CallPane.h"
#include "pages/trace/CallTable.h"
#include "pages/trace/SubjectButton.h"
#include "trace/reading/CallDetails.h"

#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

CallsPane::CallsPane(QWidget* parent)
    : QWidget(parent),
      m_filter(new CallFilterBar),
      m_table(new CallTable),
      m_call(new CallPane),
      m_show(new SubjectButton(*m_table, [this](int /*row*/) { return currentSubject(); }))
{
    m_call->addButton(m_show);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_call);
    splitter->setSizes({3000, 2000}); // shares
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(splitter, 1);
    setFocusProxy(m_filter);
    connectParts();
    showCount();
}

void CallsPane::connectParts()
{
    connect(m_filter, &CallFilterBar::changed, this, &CallsPane::search);
    connect(m_table, &CallTable::chosen, this, &CallsPane::showCall);
    connect(m_table, &CallTable::searched, this, &CallsPane::showCount);
    connect(m_show, &SubjectButton::placeRequested, this, &CallsPane::placeRequested);
}

void CallsPane::setRecording(std::shared_ptr<trace::OpenRecording> recording)
{
    m_recording = std::move(recording);
    m_table->setRecording(m_recording);
    if (m_recording)
        m_filter->setChoices(m_recording->analysis().statistics());
    search();
}

void CallsPane::follow(qint64 changed)
{
    m_filter->setChoices(m_recording->analysis().statistics());
    m_table->follow(changed);
    showCall();
    m_show->refreshState();
}

bool CallsPane::isSearching() const
{
    return m_table->isSearching();
}

void CallsPane::find()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
}

void CallsPane::search()
{
    m_table->search(m_filter->query());
    showCount();
}

void CallsPane::showCount()
{
    const int shown = m_table->model()->rowCount();
    if (!m_recording)
        m_filter->showCount(QString());
    else if (m_table->isSearching())
        m_filter->showCount(tr("Searching: %L1 so far").arg(shown));
    else
        m_filter->showCount(
            tr("Calls: %L1 of %L2").arg(shown).arg(m_recording->file().calls().size()));
}

const trace::CallEntry* CallsPane::currentEntry() const
{
    const qint64 number = m_table->currentCall();
    const int place = m_recording && number > 0 ? m_recording->file().indexOf(number) : -1;
    return place < 0 ? nullptr : &m_recording->file().calls()[static_cast<std::size_t>(place)];
}

void CallsPane::showCall()
{
    const trace::CallEntry* const entry = currentEntry();
    const std::optional<trace::Call> call = entry ? m_recording->file().call(*entry) : std::nullopt;
    m_call->setText(call ? trace::CallDetails(*call, m_recording->file().operation(*entry),
                                              m_recording->handleText(call->number))
                               .text()
                         : QString());
}

std::optional<trace::CallSubject> CallsPane::currentSubject() const
{
    const trace::CallEntry* const entry = currentEntry();
    const std::optional<trace::Call> call = entry ? m_recording->file().call(*entry) : std::nullopt;
    if (!call)
        return {};
    return trace::CallSubject::of(
        *call, m_recording->file().operation(*entry), [this, entry](const QString& handle) {
            return m_recording->analysis().handles().path(handle, entry->number);
        });
}

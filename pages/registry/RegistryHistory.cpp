#include "pages/registry/RegistryHistory.h"

#include "inspection/registry/RegistryPath.h"
#include "pages/registry/ChangeReport.h"
#include "window/MadeChange.h"
#include "window/Page.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

namespace {

using Report = PageContext::Report;

constexpr int mostNamed = 10;

QString listOf(const QStringList& paths)
{
    QStringList lines;
    const QStringList named = paths.mid(0, mostNamed);
    for (const QString& path : named)
        lines.append(RegistryPath::shown(path));
    if (paths.size() > mostNamed)
        lines.append(
            RegistryHistory::tr("and %1 more").arg(QLocale().toString(paths.size() - mostNamed)));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

/// One change on the undo stack.
class RegistryHistory::Step : public MadeChange
{
public:
    Step(RegistryHistory& history, const Change& change)
        : MadeChange(change.description.text), m_history(history), m_change(change)
    {
    }

protected:
    void takeBack() override { restore(Direction::TakeBack); }
    void makeAgain() override { restore(Direction::Make); }

private:
    void restore(Direction direction) { m_history.request(m_change, direction); }

    RegistryHistory& m_history;
    Change m_change;
};

/// The way of a change through the gate. The undo stack has moved on by then: where the gate drops
/// the change, the stack goes back, in a turn of the event loop of its own.
class RegistryHistory::Passage
{
public:
    Passage(RegistryHistory& history, Direction direction)
        : m_history(&history), m_direction(direction)
    {
    }
    Passage(const Passage&) = delete;
    Passage& operator=(const Passage&) = delete;
    ~Passage()
    {
        if (m_history && !m_isThrough)
            QMetaObject::invokeMethod(
                m_history,
                [history = m_history.data(), direction = m_direction] { history->stay(direction); },
                Qt::QueuedConnection);
    }

    void pass() { m_isThrough = true; }

private:
    QPointer<RegistryHistory> m_history;
    Direction m_direction;
    bool m_isThrough = false;
};

RegistryHistory::RegistryHistory(PageContext& page, Gate gate, QWidget* window)
    : QObject(window),
      m_page(page),
      m_stack(&page.undoStack()),
      m_gate(std::move(gate)),
      m_window(window)
{
}

StoreRecorder::Log RegistryHistory::log(const QString& prefix) const
{
    return [&page = m_page, prefix](const QString& line) { page.log(prefix + line); };
}

std::shared_ptr<StoreRecorder> RegistryHistory::recorder() const
{
    return std::make_shared<StoreRecorder>(log());
}

bool RegistryHistory::add(const Description& description, StoreRecorder& recorder)
{
    recorder.endLog();
    return push({description, std::make_shared<StoreChange>(recorder.change())});
}

bool RegistryHistory::push(const Change& change)
{
    if (change.entries->empty())
        return false;
    m_stack->push(new Step(*this, change));
    return true;
}

void RegistryHistory::make(const Description& description, StoreChange change)
{
    const Change made{description, std::make_shared<StoreChange>(std::move(change))};
    m_page.startJob(
        tr("Changing the store"),
        std::make_unique<StoreChangeJob>(made.entries, Direction::Make, Others::StopAll, log()),
        [this, made](const StoreChangeJob& job, bool complete) { endMaking(made, job, complete); });
}

// A change that was cancelled half-way can be undone too: what it has not reached is then as it was
// already.
void RegistryHistory::endMaking(const Change& change, const StoreChangeJob& job, bool complete)
{
    const QString& text = change.description.text;
    if (job.isStopped()) {
        show(change, Direction::TakeBack);
        m_page.report(Report::Error,
                      tr("%1: the store has changed meanwhile. Nothing was changed.").arg(text));
        return;
    }
    push(change);
    show(change, Direction::Make);
    if (complete)
        reportChange(m_page, Report::Info, tr("Done: %1.").arg(text));
    else
        reportCancelled(change, Direction::TakeBack);
}

void RegistryHistory::request(const Change& change, Direction direction)
{
    if (m_isStaying)
        return;
    const auto passage = std::make_shared<Passage>(*this, direction);
    m_gate([this, change, direction, passage] {
        passage->pass();
        restore(change, direction, Others::StopAll);
    });
}

void RegistryHistory::restore(const Change& change, Direction direction, Others others)
{
    const bool isUndo = direction == Direction::TakeBack;
    // Like all lines of the audit trail they are not translated.
    const auto log = this->log(isUndo ? QStringLiteral("Undone: ") : QStringLiteral("Redone: "));
    m_page.startJob(isUndo ? tr("Undoing") : tr("Redoing"),
                    std::make_unique<StoreChangeJob>(change.entries, direction, others, log),
                    [this, change, direction](const StoreChangeJob& job, bool complete) {
                        endRestoring(change, direction, job, complete);
                    });
}

void RegistryHistory::endRestoring(const Change& change, Direction direction,
                                   const StoreChangeJob& job, bool complete)
{
    show(change, direction);
    if (job.isStopped())
        return ask(change, direction, job.foreign());
    if (complete)
        return reportRestored(change, direction, job);
    stay(direction);
    reportCancelled(change, direction);
}

// What is on the stack next takes back what was done by half, or does the rest of it.
void RegistryHistory::reportCancelled(const Change& change, Direction next)
{
    const QString sentence = next == Direction::TakeBack
                                 ? tr("Cancelled half-way: %1. Undo (Ctrl+Z) restores what was.")
                                 : tr("Cancelled half-way: %1. Redo (Ctrl+Shift+Z) does the rest.");
    reportChange(m_page, Report::Warning, sentence.arg(change.description.text));
}

void RegistryHistory::show(const Change& change, Direction direction)
{
    const Description& description = change.description;
    const std::optional<Place>& place =
        direction == Direction::TakeBack ? description.before : description.after;
    if (place)
        emit changed(place->key, place->name);
    else
        emit outdated();
}

void RegistryHistory::reportRestored(const Change& change, Direction direction,
                                     const StoreChangeJob& job)
{
    const QString sentence =
        direction == Direction::TakeBack ? tr("Undone: %1.") : tr("Redone: %1.");
    const QString text = sentence.arg(change.description.text);
    if (job.leftBe() == 0)
        return reportChange(m_page, Report::Info, text);
    reportChange(m_page, Report::Warning,
                 tr("%1 Left as somebody else has changed them: %2.")
                     .arg(text, QLocale().toString(job.leftBe())));
}

// Nothing has been written yet. The stack has moved on already: it goes back where the answer is
// Cancel.
void RegistryHistory::ask(const Change& change, Direction direction, const QStringList& foreign)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Changed meanwhile"),
                                tr("%1: somebody else has changed this since. It would be lost.")
                                    .arg(change.description.text),
                                QMessageBox::Cancel, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(listOf(foreign));
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* overwrite = glowing(box->addButton(tr("Overwrite"), QMessageBox::AcceptRole));
    const bool hasRest = foreign.size() < static_cast<int>(change.entries->size());
    QPushButton* rest =
        hasRest ? glowing(box->addButton(tr("Only the rest"), QMessageBox::YesRole)) : nullptr;
    glowing(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->setDefaultButton(QMessageBox::Cancel);
    // The title bar closes it without a button.
    connect(box, &QDialog::finished, this, [=] {
        const QAbstractButton* button = box->clickedButton();
        if (button == overwrite)
            restore(change, direction, Others::Overwrite);
        else if (rest && button == rest)
            restore(change, direction, Others::LeaveBe);
        else
            stay(direction);
    });
    box->open();
}

void RegistryHistory::stay(Direction direction)
{
    if (!m_stack)
        return;
    const QScopedValueRollback staying(m_isStaying, true);
    if (direction == Direction::TakeBack)
        m_stack->redo();
    else
        m_stack->undo();
}

#include "pages/registry/StoreGate.h"

#include "inspection/registry/StoreWatch.h"
#include "pages/registry/StoreBackup.h"
#include "window/Page.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using State = StoreWatch::State;

/// The way of an action through the gate. It ends with the last copy of the action.
class StoreGate::Passage
{
public:
    Passage(StoreGate& gate, const Action& dropped) : m_gate(&gate), m_dropped(dropped) {}
    Passage(const Passage&) = delete;
    Passage& operator=(const Passage&) = delete;
    ~Passage()
    {
        if (m_gate && m_dropped)
            QMetaObject::invokeMethod(m_gate, m_dropped, Qt::QueuedConnection);
    }

    void pass() { m_dropped = nullptr; }

private:
    QPointer<StoreGate> m_gate; ///< null when the page is being destroyed
    Action m_dropped;
};

StoreGate::StoreGate(PageContext& page, StoreWatch& watch, Export exportStore, QWidget* window)
    : QObject(window),
      m_page(page),
      m_watch(watch),
      m_export(std::move(exportStore)),
      m_window(window)
{
}

void StoreGate::pass(const Action& write, const Action& dropped)
{
    m_allowed.reset();
    const auto passage = std::make_shared<Passage>(*this, dropped);
    const Action guarded = [write, passage] {
        passage->pass();
        write();
    };
    if (m_watch.state() != State::Unknown)
        return decide(guarded);
    m_page.startJob(tr("Comparing the store with its file"), std::make_unique<StoreComparisonJob>(),
                    [this, guarded](const StoreComparisonJob& job, bool complete) {
                        if (!complete)
                            return m_page.setStatus(tr("Cancelled: nothing was changed."));
                        m_watch.settle(job);
                        decide(guarded);
                    });
}

void StoreGate::passAgain(const Action& write, const Action& dropped)
{
    const State state = m_watch.state();
    if (state != State::InStep && state != State::Unknown && m_watch.file() == m_allowed)
        write();
    else
        pass(write, dropped);
}

void StoreGate::open(QDialog* dialog, const Action& accepted)
{
    const QPointer<QDialog> open = dialog;
    connect(dialog, &QDialog::rejected, dialog, &QObject::deleteLater);
    connect(dialog, &QDialog::accepted, this, [this, open, accepted] {
        const Action write = [open, accepted] {
            accepted();
            open->deleteLater();
        };
        passAgain(write, [open] { open->open(); });
    });
    dialog->open();
}

void StoreGate::decide(const Action& write)
{
    const State state = m_watch.state();
    // The next change may be saved, and the ones before it with it.
    if (state == State::InStep || state == State::Unsaved)
        write();
    else
        ask(write);
}

void StoreGate::writeAllTheSame(const Action& write)
{
    m_allowed = m_watch.file();
    changeWithBackup(m_page, m_watch.file().exists(),
                     [write](const QString& /*backup*/) { write(); });
}

void StoreGate::ask(const Action& write)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("The store's file"), m_watch.text(),
                                QMessageBox::Cancel, m_window);
    box->setTextFormat(Qt::PlainText);
    const QString exported = tr("An export first keeps what host libraries can read now.");
    const QString copied = tr("Before anything is written, a copy keeps the file as it is.");
    box->setInformativeText(m_watch.file().exists() ? copied + QLatin1Char(' ') + exported
                                                    : exported);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = glowing(box->addButton(tr("Write"), QMessageBox::AcceptRole));
    QPushButton* first = glowing(box->addButton(tr("Export first..."), QMessageBox::ActionRole));
    glowing(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QMessageBox::buttonClicked, this, [=](const QAbstractButton* button) {
        if (button == yes) {
            writeAllTheSame(write);
        } else if (button == first) {
            m_export([this, write] { pass(write); });
        }
    });
    box->open();
}

#include "pages/registry/StoreGate.h"

#include "inspection/registry/StoreWatch.h"
#include "window/Page.h"

#include <QMessageBox>
#include <QPushButton>

using State = StoreWatch::State;

StoreGate::StoreGate(PageContext& page, StoreWatch& watch, Export exportStore, QWidget* window)
    : QObject(window),
      m_page(page),
      m_watch(watch),
      m_export(std::move(exportStore)),
      m_window(window)
{
}

void StoreGate::pass(const Action& write)
{
    if (m_watch.state() != State::Unknown)
        return decide(write);
    m_page.startJob(tr("Comparing the store with its file"), std::make_unique<StoreComparisonJob>(),
                    [this, write](const StoreComparisonJob& job, bool complete) {
                        if (!complete)
                            return m_page.setStatus(tr("Cancelled: nothing was changed."));
                        m_watch.settle(job);
                        decide(write);
                    });
}

void StoreGate::decide(const Action& write)
{
    if (m_watch.state() == State::InStep)
        write();
    else
        ask(write);
}

void StoreGate::ask(const Action& write)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("The store's file"), m_watch.text(),
                                QMessageBox::Cancel, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("An export first keeps what host libraries can read now."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = glowing(box->addButton(tr("Write"), QMessageBox::AcceptRole));
    QPushButton* first = glowing(box->addButton(tr("Export first..."), QMessageBox::ActionRole));
    glowing(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QMessageBox::buttonClicked, this, [=](const QAbstractButton* button) {
        if (button == yes)
            write();
        else if (button == first)
            m_export([this, write] { pass(write); });
    });
    box->open();
}

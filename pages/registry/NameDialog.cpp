#include "pages/registry/NameDialog.h"

#include "window/Page.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

NameDialog::NameDialog(const QString& title, const QString& key, Problem problem, QWidget* parent,
                       const QString& first)
    : QDialog(parent),
      m_problem(std::move(problem)),
      m_name(new QLineEdit(first)),
      m_note(new QLabel)
{
    setWindowTitle(title);
    auto* place = new QLabel(tr("In %1").arg(key));
    place->setTextFormat(Qt::PlainText);
    place->setWordWrap(true);
    m_name->setAccessibleName(tr("Name"));
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    m_name->selectAll();
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = glowing(buttons->button(QDialogButtonBox::Ok));
    glowing(buttons->button(QDialogButtonBox::Cancel));
    auto* form = new QFormLayout(this);
    form->addRow(place);
    form->addRow(tr("&Name:"), m_name);
    form->addRow(m_note);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &NameDialog::check);
    check();
}

QString NameDialog::name() const
{
    return m_name->text();
}

void NameDialog::check()
{
    const QString problem = m_problem(name());
    m_note->setText(problem);
    m_ok->setEnabled(problem.isEmpty());
}

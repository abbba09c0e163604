#include "pages/registry/NameDialog.h"

#include "inspection/registry/ValueInput.h"
#include "window/Page.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

NameDialog::NameDialog(const QString& parentKey, QWidget* parent)
    : QDialog(parent), m_name(new QLineEdit), m_note(new QLabel)
{
    setWindowTitle(tr("New key"));
    auto* place = new QLabel(tr("In %1").arg(parentKey));
    place->setTextFormat(Qt::PlainText);
    place->setWordWrap(true);
    m_name->setAccessibleName(tr("Name"));
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
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
    const QString problem = ValueInput::keyNameProblem(name());
    m_note->setText(problem);
    m_ok->setEnabled(problem.isEmpty());
}

#include "pages/registry/ValueDialog.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/ValueInput.h"
#include "platform/registry/TypeName.h"
#include "window/GlyphIcon.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr unsigned int types[] = {REG_SZ, REG_DWORD, REG_QWORD, REG_BINARY};

// True where the text has line ends that editing changes: the field knows line feeds alone.
bool hasOtherLineEnds(const QString& text)
{
    return text.contains(QLatin1Char('\r')) || text.contains(QChar::LineSeparator) ||
           text.contains(QChar::ParagraphSeparator);
}

} // namespace

ValueDialog::ValueDialog(unsigned int type, QWidget* parent)
    : QDialog(parent),
      m_name(new QLineEdit),
      m_type(new QComboBox),
      m_data(new QPlainTextEdit),
      m_noteIcon(new QLabel),
      m_note(new QLabel)
{
    setWindowTitle(tr("New value"));
    for (const unsigned int offered : types)
        m_type->addItem(registryTypeName(offered), offered);
    m_type->setCurrentIndex(m_type->findData(type));
    build();
    check();
}

ValueDialog::ValueDialog(const QString& name, unsigned int type, const QByteArray& data,
                         QWidget* parent)
    : ValueDialog(type, parent)
{
    setWindowTitle(tr("Edit value"));
    m_name->setText(name);
    m_name->setReadOnly(true);
    m_data->setPlainText(RegistryFormat::editable(type, data));
    m_original = {type, data, m_data->document()->toRawText()};
    m_data->selectAll();
    m_data->setFocus();
}

void ValueDialog::build()
{
    m_name->setAccessibleName(tr("Name"));
    m_type->setAccessibleName(tr("Type"));
    m_data->setAccessibleName(tr("Data"));
    m_data->setTabChangesFocus(true);
    m_data->setMinimumSize(fontMetrics().averageCharWidth() * 48, fontMetrics().lineSpacing() * 5);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Two lines of a note change nothing in the dialog's size.
    m_note->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    auto* note = new QHBoxLayout;
    note->addWidget(m_noteIcon, 0, Qt::AlignTop);
    note->addWidget(m_note, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = glowing(buttons->button(QDialogButtonBox::Ok));
    glowing(buttons->button(QDialogButtonBox::Cancel));
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Type:"), m_type);
    form->addRow(tr("D&ata:"), m_data);
    form->addRow(note);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &ValueDialog::check);
    connect(m_type, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ValueDialog::check);
    connect(m_data, &QPlainTextEdit::textChanged, this, &ValueDialog::check);
}

QString ValueDialog::name() const
{
    return m_name->text();
}

unsigned int ValueDialog::type() const
{
    return m_type->currentData().toUInt();
}

QByteArray ValueDialog::data() const
{
    if (!isUnchanged())
        return ValueInput(type(), textOf(*m_data)).data();
    return type() == REG_SZ ? m_original.data + registryTextData(QString()) : m_original.data;
}

// The field may show data otherwise than it is, as with line ends; untouched it stays as it is.
bool ValueDialog::isUnchanged() const
{
    return m_name->isReadOnly() && type() == m_original.type &&
           m_data->document()->toRawText() == m_original.shown;
}

QString ValueDialog::warning(const ValueInput& input) const
{
    const bool losesLineEnds = type() == REG_SZ && m_original.type == REG_SZ && !isUnchanged() &&
                               hasOtherLineEnds(registryText(m_original.data));
    return losesLineEnds ? tr("Line ends become LF.") : input.warning();
}

// A fixed name comes from the store, which has it already: it is not checked.
void ValueDialog::check()
{
    const ValueInput input(type(), textOf(*m_data));
    const QString nameProblem = m_name->isReadOnly() ? QString() : ValueInput::nameProblem(name());
    const QString problem = nameProblem.isEmpty() ? input.problem() : nameProblem;
    m_ok->setEnabled(problem.isEmpty());
    showNote(problem.isEmpty() ? warning(input) : problem, !problem.isEmpty());
}

void ValueDialog::showNote(const QString& text, bool isProblem)
{
    const int side = fontMetrics().height();
    const QIcon icon = glyphIcon(isProblem ? Glyph::Error : Glyph::Warning);
    m_noteIcon->setPixmap(text.isEmpty() ? QPixmap() : icon.pixmap(windowHandle(), {side, side}));
    m_note->setText(text);
}

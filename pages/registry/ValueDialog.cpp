#include "pages/registry/ValueDialog.h"

#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/ValueInput.h"
#include "pages/registry/DataField.h"
#include "platform/registry/EncodedValue.h"
#include "platform/registry/TypeName.h"
#include "window/GlyphIcon.h"
#include "window/Page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr unsigned int types[] = {REG_SZ, REG_DWORD, REG_QWORD, REG_BINARY};

// In characters: what a line of the dialog has room for.
constexpr int longestShownText = 60;

// True where the text has line ends that editing changes: the field knows line feeds alone.
bool hasOtherLineEnds(const QString& text)
{
    return text.contains(QLatin1Char('\r')) || text.contains(QChar::LineSeparator) ||
           text.contains(QChar::ParagraphSeparator);
}

// A line of the dialog shows no line ends of its own.
QString withSigns(QString text)
{
    return text.replace(QLatin1Char('\n'), QChar(0x21B5)).replace(QLatin1Char('\r'), QChar(0x240D));
}

QString shortened(const QString& text)
{
    return text.size() > longestShownText ? text.left(longestShownText) + QChar(0x2026) : text;
}

} // namespace

ValueDialog::ValueDialog(unsigned int type, NameProblem nameProblem, QWidget* parent)
    : QDialog(parent),
      m_nameProblem(std::move(nameProblem)),
      m_form(new QFormLayout(this)),
      m_name(new QLineEdit),
      m_type(new QComboBox),
      m_data(new DataField),
      m_several(new QCheckBox(tr("Se&veral lines"))),
      m_noteIcon(new QLabel),
      m_note(new QLabel)
{
    setWindowTitle(tr("New value"));
    for (const unsigned int offered : types)
        m_type->addItem(registryTypeName(offered), offered);
    m_type->setCurrentIndex(m_type->findData(type));
    build();
    arrangeField();
    check();
}

ValueDialog::ValueDialog(const ListedValue& value, QWidget* parent)
    : ValueDialog(value.isReadable() ? value.reading().type : REG_SZ, &ValueInput::nameProblem,
                  parent)
{
    setWindowTitle(tr("Edit value"));
    m_original = {type(), value.isReadable() ? value.reading().data : QByteArray(), value.raw(),
                  value.remark()};
    m_name->setText(value.name());
    m_name->setReadOnly(true);
    m_data->setText(RegistryFormat::editable(m_original.type, m_original.data));
    addStored(value);
    arrangeField();
    check();
    m_data->selectAll();
    m_data->setFocus();
}

void ValueDialog::build()
{
    m_name->setAccessibleName(tr("Name"));
    m_type->setAccessibleName(tr("Type"));
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
    m_form->addRow(tr("&Name:"), m_name);
    m_form->addRow(tr("&Type:"), m_type);
    m_form->addRow(tr("D&ata:"), m_data);
    m_form->addRow(QString(), m_several);
    m_form->addRow(note);
    m_form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &ValueDialog::check);
    connect(m_type, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ValueDialog::arrangeField);
    connect(m_type, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ValueDialog::check);
    connect(m_several, &QCheckBox::toggled, this, &ValueDialog::arrangeField);
    connect(m_data, &DataField::changed, this, &ValueDialog::arrangeField);
    connect(m_data, &DataField::changed, this, &ValueDialog::check);
    connect(m_data, &DataField::submitted, m_ok, &QPushButton::click);
}

// The line of the stored text comes before the note.
void ValueDialog::addStored(const ListedValue& value)
{
    auto* stored = new QLineEdit(withSigns(value.raw()));
    stored->setReadOnly(true);
    stored->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    stored->setAccessibleName(tr("Stored text (raw)"));
    stored->setCursorPosition(0);
    m_replaced = new QLabel;
    m_replaced->setTextFormat(Qt::PlainText);
    const int place = m_form->rowCount() - 2;
    m_form->insertRow(place, tr("Stored:"), stored);
    m_form->insertRow(place + 1, QString(), m_replaced);
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
    return ValueInput(type(), m_data->text()).data();
}

// The text that the service would store; empty where it would refuse.
QString ValueDialog::storedText() const
{
    const ValueInput input(type(), m_data->text());
    if (!input.isValid())
        return {};
    const QByteArray data = input.data();
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    return EncodedValue(type(), bytes, static_cast<unsigned int>(data.size())).text();
}

// What a value that cannot be read shows as is no part of it: anything typed there is a change, be
// it the same text again. The field may also show a text otherwise than it is, as with line ends.
bool ValueDialog::isUnchanged() const
{
    if (!m_replaced)
        return false;
    if (type() == m_original.type && m_data->isOriginal() &&
        (m_original.remark.isEmpty() || !m_data->isTouched()))
        return true;
    return storedText() == m_original.raw && !m_original.raw.isEmpty();
}

QString ValueDialog::warning(const ValueInput& input) const
{
    if (isUnchanged())
        return m_original.remark;
    const bool losesLineEnds = type() == REG_SZ && m_original.type == REG_SZ &&
                               hasOtherLineEnds(registryText(m_original.data));
    return losesLineEnds ? tr("Line ends become LF.") : input.warning();
}

// Bytes are long, numbers are not; of a text the user decides.
void ValueDialog::arrangeField()
{
    const bool isText = type() == REG_SZ;
    const bool keepsLarge = m_data->hasLineEnds();
    if (isText && keepsLarge)
        m_several->setChecked(true);
    m_several->setVisible(isText);
    m_several->setEnabled(!keepsLarge);
    m_data->setLarge(type() == REG_BINARY || (isText && m_several->isChecked()));
}

// A fixed name comes from the store, which has it already: it is not checked. What stays as it is
// need not be valid either.
void ValueDialog::check()
{
    const ValueInput input(type(), m_data->text());
    QString problem = m_name->isReadOnly() ? QString() : m_nameProblem(name());
    if (problem.isEmpty() && !isUnchanged())
        problem = input.problem();
    m_ok->setEnabled(problem.isEmpty());
    showNote(problem.isEmpty() ? warning(input) : problem, !problem.isEmpty());
    tellReplaced();
}

void ValueDialog::tellReplaced()
{
    if (!m_replaced)
        return;
    if (isUnchanged())
        m_replaced->setText(tr("OK leaves it as it is."));
    else if (!m_ok->isEnabled())
        m_replaced->setText(tr("It is not replaced by what is typed."));
    else
        m_replaced->setText(tr("OK replaces it with: %1").arg(shortened(withSigns(storedText()))));
}

void ValueDialog::showNote(const QString& text, bool isProblem)
{
    const int side = fontMetrics().height();
    const QIcon icon = glyphIcon(isProblem ? Glyph::Error : Glyph::Warning);
    m_noteIcon->setPixmap(text.isEmpty() ? QPixmap() : icon.pixmap(windowHandle(), {side, side}));
    m_note->setText(text);
}

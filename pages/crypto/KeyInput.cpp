#include "pages/crypto/KeyInput.h"

#include "inspection/crypto/Sentences.h"
#include "window/PageContext.h"
#include "window/ShownText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace {

/// A place for fields without margins of its own.
QGridLayout* makeGrid()
{
    auto* grid = new QGridLayout(new QWidget);
    grid->setContentsMargins(0, 0, 0, 0);
    return grid;
}

/// Puts a masked field with its caption into a row of the grid.
void addSecret(const QString& caption, QLineEdit* field, QGridLayout* grid)
{
    field->setEchoMode(QLineEdit::Password);
    field->setAccessibleName(withoutMnemonic(caption));
    auto* label = new QLabel(caption);
    label->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}

} // namespace

KeyInput::KeyInput(PageContext& context, QWidget* parent)
    : QWidget(parent),
      m_context(context),
      m_useKeys(new QRadioButton(tr("&With key and IV"))),
      m_passPhrase(new QLineEdit),
      m_key(new QLineEdit),
      m_iv(new QLineEdit),
      m_hexadecimal(new QCheckBox(tr("Written in hexadeci&mal")))
{
    auto* usePassPhrase =
        new QRadioButton(tr("&Under a pass phrase, as DecryptionAES_Export does"));
    auto* choice = new QHBoxLayout;
    choice->addWidget(usePassPhrase);
    choice->addWidget(m_useKeys);
    choice->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choice);
    // No stack: it would keep the room of the taller one free.
    QWidget* passPhrasePlace = makePassPhrase();
    QWidget* keysPlace = makeKeys();
    layout->addWidget(passPhrasePlace);
    layout->addWidget(keysPlace);
    connect(m_useKeys, &QRadioButton::toggled, this, [=](bool keys) {
        passPhrasePlace->setHidden(keys);
        keysPlace->setVisible(keys);
        setFocusProxy(keys ? m_key : m_passPhrase);
    });
    keysPlace->hide();
    usePassPhrase->setChecked(true);
    setFocusProxy(m_passPhrase);
}

QWidget* KeyInput::makeReveal(const std::vector<QLineEdit*>& fields)
{
    auto* reveal = new QCheckBox(tr("Show what is typ&ed"));
    connect(reveal, &QCheckBox::toggled, this, [fields](bool shown) {
        for (QLineEdit* field : fields)
            field->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    });
    return reveal;
}

QWidget* KeyInput::makePassPhrase()
{
    QGridLayout* grid = makeGrid();
    addSecret(tr("Pass phra&se:"), m_passPhrase, grid);
    grid->addWidget(makeReveal({m_passPhrase}), grid->rowCount() - 1, 2);
    return grid->parentWidget();
}

QWidget* KeyInput::makeKeys()
{
    QGridLayout* grid = makeGrid();
    addKey(tr("&Key:"), m_key, grid);
    addKey(tr("I&V:"), m_iv, grid);
    auto* boxes = new QHBoxLayout;
    boxes->addWidget(m_hexadecimal);
    boxes->addWidget(makeReveal({m_key, m_iv}));
    boxes->addStretch();
    grid->addLayout(boxes, grid->rowCount(), 1, 1, 2);
    return grid->parentWidget();
}

void KeyInput::addKey(const QString& caption, QLineEdit* field, QGridLayout* grid)
{
    addSecret(caption, field, grid);
    auto* count = new QLabel(typed(field).count());
    grid->addWidget(count, grid->rowCount() - 1, 2);
    const auto show = [this, field, count] { count->setText(typed(field).count()); };
    connect(field, &QLineEdit::textChanged, count, show);
    connect(m_hexadecimal, &QCheckBox::toggled, count, show);
}

TypedKey KeyInput::typed(const QLineEdit* field) const
{
    const TypedKey::Kind kind = field == m_key ? TypedKey::Kind::Key : TypedKey::Kind::Iv;
    return {kind, field->text(), m_hexadecimal->isChecked()};
}

KeySource KeyInput::source() const
{
    return m_useKeys->isChecked() ? KeySource::KeyAndIv : KeySource::PassPhrase;
}

std::string KeyInput::passPhrase() const
{
    return m_passPhrase->text().toStdString();
}

std::optional<CipherKeys> KeyInput::refuse(QLineEdit* field, const QString& problem)
{
    m_context.report(PageContext::Report::Warning, problem);
    field->setFocus();
    return {};
}

std::optional<CipherKeys> KeyInput::keys()
{
    if (source() == KeySource::PassPhrase) {
        if (m_passPhrase->text().isEmpty())
            return refuse(m_passPhrase, tr("Enter the pass phrase first."));
        return keysFromPassPhrase(passPhrase());
    }
    for (QLineEdit* field : {m_key, m_iv}) {
        const QString problem = typed(field).problem();
        if (!problem.isEmpty())
            return refuse(field, problem);
    }
    return CipherKeys{typed(m_key).bytes().toStdString(), typed(m_iv).bytes().toStdString()};
}

QString KeyInput::note() const
{
    if (source() == KeySource::PassPhrase)
        return {};
    return joinSentences({typed(m_key).note(), typed(m_iv).note()});
}

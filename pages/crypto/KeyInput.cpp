#include "pages/crypto/KeyInput.h"

#include "window/ShownText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int keySize = 16;

bool isHexadecimal(const QString& text)
{
    const QString digits = QStringLiteral("0123456789abcdefABCDEF");
    for (const QChar character : text) {
        if (!digits.contains(character))
            return false;
    }
    return text.size() % 2 == 0;
}

} // namespace

KeyInput::KeyInput(QWidget* parent)
    : QWidget(parent),
      m_usePassPhrase(new QRadioButton(tr("&Under a pass phrase, as DecryptionAES_Export does"))),
      m_useKeys(new QRadioButton(tr("With key &and IV")))
{
    auto* choice = new QHBoxLayout;
    choice->addWidget(m_usePassPhrase);
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
    connect(m_useKeys, &QRadioButton::toggled, passPhrasePlace, &QWidget::setHidden);
    connect(m_useKeys, &QRadioButton::toggled, keysPlace, &QWidget::setVisible);
    connect(m_useKeys, &QRadioButton::toggled, this,
            [this](bool keys) { setFocusProxy(keys ? m_key : m_passPhrase); });
    keysPlace->hide();
    m_usePassPhrase->setChecked(true);
    setFocusProxy(m_passPhrase);
}

QWidget* KeyInput::makePassPhrase()
{
    auto* place = new QWidget;
    auto* grid = new QGridLayout(place);
    grid->setContentsMargins(0, 0, 0, 0);
    m_passPhrase = addSecret(tr("Pass phra&se:"), grid);
    return place;
}

QWidget* KeyInput::makeKeys()
{
    auto* place = new QWidget;
    auto* grid = new QGridLayout(place);
    grid->setContentsMargins(0, 0, 0, 0);
    m_hexadecimal = new QCheckBox(tr("&Written in hexadecimal"));
    m_key = addKey(tr("&Key:"), grid);
    m_iv = addKey(tr("I&V:"), grid);
    grid->addWidget(m_hexadecimal, grid->rowCount(), 1, 1, 2);
    return place;
}

QLineEdit* KeyInput::addSecret(const QString& caption, QGridLayout* grid)
{
    auto* field = new QLineEdit;
    field->setEchoMode(QLineEdit::Password);
    field->setAccessibleName(withoutMnemonic(caption));
    auto* label = new QLabel(caption);
    label->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    return field;
}

QLineEdit* KeyInput::addKey(const QString& caption, QGridLayout* grid)
{
    QLineEdit* field = addSecret(caption, grid);
    auto* count = new QLabel;
    grid->addWidget(count, grid->rowCount() - 1, 2);
    const auto show = [this, field, count] { count->setText(countOf(field)); };
    connect(field, &QLineEdit::textChanged, count, show);
    connect(m_hexadecimal, &QCheckBox::toggled, count, show);
    show();
    return field;
}

QByteArray KeyInput::bytes(const QLineEdit* field) const
{
    const QByteArray text = field->text().toUtf8();
    return m_hexadecimal->isChecked() ? QByteArray::fromHex(text) : text;
}

QString KeyInput::countOf(const QLineEdit* field) const
{
    const int count = bytes(field).size();
    if (count > keySize)
        return tr("%1 bytes: only the first %2 are used").arg(count).arg(keySize);
    return tr("%1 of %2 bytes").arg(count).arg(keySize);
}

bool KeyInput::usesPassPhrase() const
{
    return m_usePassPhrase->isChecked();
}

std::string KeyInput::passPhrase() const
{
    return m_passPhrase->text().toStdString();
}

QString KeyInput::problemOf(const QLineEdit* field) const
{
    if (m_hexadecimal->isChecked() && !isHexadecimal(field->text()))
        return field == m_key ? tr("The key is not hexadecimal: pairs of 0-9 and a-f are needed.")
                              : tr("The IV is not hexadecimal: pairs of 0-9 and a-f are needed.");
    if (bytes(field).size() < keySize)
        return field == m_key ? tr("The key is too short: the cipher takes %1 bytes.").arg(keySize)
                              : tr("The IV is too short: the cipher takes %1 bytes.").arg(keySize);
    return {};
}

std::optional<CipherKeys> KeyInput::keys(QString* problem)
{
    if (usesPassPhrase()) {
        if (!m_passPhrase->text().isEmpty())
            return keysFromPassPhrase(passPhrase());
        *problem = tr("Enter the pass phrase first.");
        m_passPhrase->setFocus();
        return {};
    }
    for (QLineEdit* field : {m_key, m_iv}) {
        *problem = problemOf(field);
        if (!problem->isEmpty()) {
            field->setFocus();
            return {};
        }
    }
    return CipherKeys{bytes(m_key).toStdString(), bytes(m_iv).toStdString()};
}

QString KeyInput::note() const
{
    if (usesPassPhrase())
        return {};
    QStringList notes;
    if (bytes(m_key).size() > keySize)
        notes += tr("Only the first %1 bytes of the key are used.").arg(keySize);
    if (bytes(m_iv).size() > keySize)
        notes += tr("Only the first %1 bytes of the IV are used.").arg(keySize);
    return notes.join(QLatin1Char(' '));
}

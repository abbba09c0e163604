#include "pages/input/KeyPanel.h"

#include "inspection/input/KeyStates.h"
#include "platform/PlatformServicesImp.h"
#include "window/AnswerField.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int knownRows = 3; // a column for each modifier, for the buttons and for the keys
constexpr int unknownRows = 5;
constexpr int lastCode = 300; // beyond the 254 that can be known

QLabel* paragraph(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

KeyPanel::KeyPanel(QWidget* parent) : QGroupBox(tr("Key states"), parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        paragraph(tr("Known to the service, as of the last event from keyboard or "
                     "mouse. Left and right cannot be told apart, and no toggle state "
                     "is told:")));
    addLamps({knownKeys.begin(), knownKeys.end()}, knownRows, layout);
    layout->addLayout(makeReports());
    layout->addWidget(paragraph(tr("Unknown to the service, as every other code: these always read "
                                   "as up.")));
    addLamps({KeyStates::unknownKeys.begin(), KeyStates::unknownKeys.end()}, unknownRows, layout);
    layout->addLayout(makeQuery());
    setFocusProxy(m_code);
    refresh();
}

KeyPanel::~KeyPanel()
{
    for (QCheckBox* report : m_reports)
        report->setChecked(false);
}

void KeyPanel::addLamps(const std::vector<VirtualKey>& keys, int rows, QVBoxLayout* layout)
{
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    int place = 0;
    for (const VirtualKey& key : keys) {
        auto* lamp = new KeyLamp(key);
        grid->addWidget(lamp, place % rows, place / rows);
        m_lamps.push_back(lamp);
        ++place;
    }
    layout->addLayout(grid);
}

// Qt does not tell their state; host libraries report it from their own key events.
QLayout* KeyPanel::makeReports()
{
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("Report with setKeyPressed:")));
    addReport(row, tr("Re&turn down"), Qt::Key_Return);
    addReport(row, tr("&Space down"), Qt::Key_Space);
    row->addStretch();
    return row;
}

void KeyPanel::addReport(QLayout* row, const QString& caption, int qtKey)
{
    auto* box = new QCheckBox(caption);
    connect(box, &QCheckBox::toggled, this, [this, qtKey](bool pressed) {
        g_PlatformServices.userInputManager()->setKeyPressed(qtKey, pressed);
        refresh();
    });
    row->addWidget(box);
    m_reports.push_back(box);
}

QLayout* KeyPanel::makeQuery()
{
    m_code = new QSpinBox;
    m_code->setRange(0, lastCode);
    m_code->setDisplayIntegerBase(16);
    m_code->setPrefix(QStringLiteral("0x"));
    m_code->setValue('A');
    m_code->setAccessibleName(tr("Code of a virtual key"));
    m_state = new AnswerField(tr("State"), QStringLiteral("state"));
    auto* label = new QLabel(tr("An&y code:"));
    label->setBuddy(m_code);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_code);
    row->addWidget(m_state, 1);
    connect(m_code, QOverload<int>::of(&QSpinBox::valueChanged), this, &KeyPanel::ask);
    return row;
}

void KeyPanel::refresh()
{
    for (KeyLamp* lamp : m_lamps)
        lamp->refresh();
    ask();
}

void KeyPanel::ask()
{
    m_state->setAnswer(KeyStates::answer(m_code->value()));
}

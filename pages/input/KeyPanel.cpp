#include "pages/input/KeyPanel.h"

#include "inspection/input/KeyStates.h"
#include "pages/input/LampGrid.h"
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

// Little between the rows: all of the page fits the smallest window.
void arrange(QVBoxLayout& layout, int line)
{
    layout.setContentsMargins(line / 2, line / 5, line / 2, line / 5);
    layout.setSpacing(line / 5);
}

} // namespace

KeyPanel::KeyPanel(QWidget* parent)
    : QGroupBox(tr("Keys known to the service, as of the last event; left and right cannot be told "
                   "apart"),
                parent)
{
    auto* layout = new QVBoxLayout(this);
    arrange(*layout, fontMetrics().height());
    addLamps({knownKeys.begin(), knownKeys.end()}, knownRows, tr("Keys known to the service"));
    m_lamps.front()->setToolTip(
        tr("The event of a modifier key itself tells the state before it: the next event of "
           "keyboard or mouse tells the new one. No toggle state is told."));
    layout->addWidget(paragraph(tr("Unknown to the service, as every other code: these always read "
                                   "as up.")));
    addLamps({KeyStates::unknownKeys.begin(), KeyStates::unknownKeys.end()}, unknownRows,
             tr("Keys unknown to the service"));
    layout->addLayout(makeQuery());
    setFocusProxy(m_lamps.front());
    refresh();
}

KeyPanel::~KeyPanel()
{
    for (QCheckBox* report : m_reports)
        report->setChecked(false);
}

void KeyPanel::addLamps(const std::vector<VirtualKey>& keys, int rows, const QString& name)
{
    auto* lamps = new LampGrid(keys, rows);
    lamps->setAccessibleName(name);
    layout()->addWidget(lamps);
    m_lamps.push_back(lamps);
}

// Qt does not tell their state; host libraries report it from their own key events.
void KeyPanel::addReports(QLayout* row)
{
    auto* caption = new QLabel(tr("Report:"));
    caption->setToolTip(
        tr("setKeyPressed: tells the service that a key is down, as host libraries do."));
    row->addWidget(caption);
    addReport(row, tr("Re&turn down"), Qt::Key_Return);
    addReport(row, tr("&Space down"), Qt::Key_Space);
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
    // Some styles make the buttons as wide as a word, and leave room for those that there are not.
    m_code->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_code->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0x00000000")));
    m_code->setValue('A');
    m_code->setAccessibleName(tr("Code of a virtual key"));
    m_state = new AnswerField(tr("State"), QStringLiteral("state"));
    auto* label = new QLabel(tr("An&y code:"));
    label->setBuddy(m_code);
    auto* row = new QHBoxLayout;
    addReports(row);
    row->addSpacing(fontMetrics().height() / 2);
    row->addWidget(label);
    row->addWidget(m_code);
    row->addWidget(m_state, 1);
    connect(m_code, QOverload<int>::of(&QSpinBox::valueChanged), this, &KeyPanel::ask);
    return row;
}

void KeyPanel::refresh()
{
    for (LampGrid* lamps : m_lamps)
        lamps->refresh();
    ask();
}

void KeyPanel::ask()
{
    m_state->setAnswer(KeyStates::answer(m_code->value()));
}

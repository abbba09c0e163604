#include "pages/profiles/ProfileEditPanel.h"

#include "window/Page.h"
#include "window/ShownText.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <limits>

ProfileEditPanel::ProfileEditPanel(QWidget* parent)
    : QGroupBox(tr("Change or add a value"), parent),
      m_family(new QComboBox),
      m_backup(new QCheckBox(tr("Keep a &backup")))
{
    auto* grid = new QGridLayout(this);
    m_section = addInput(grid, 0, 0, 1, tr("&Section:"), "section");
    m_key = addInput(grid, 0, 2, 1, tr("&Key:"), "key");
    m_value = addInput(grid, 1, 0, 3, tr("&Value:"), "value");
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    addLastRow(grid);
    connect(m_family, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ProfileEditPanel::showValue);
}

QLineEdit* ProfileEditPanel::addInput(QGridLayout* grid, int row, int column, int span,
                                      const QString& label, const char* objectName)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(objectName));
    edit->setAccessibleName(withoutMnemonic(label));
    edit->setAcceptDrops(false);                         // files dropped here are for the page
    edit->setMaxLength(std::numeric_limits<int>::max()); // a value that is cut would be written so
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, column);
    grid->addWidget(edit, row, column + 1, 1, span);
    connect(edit, &QLineEdit::returnPressed, this, &ProfileEditPanel::writeRequested);
    return edit;
}

void ProfileEditPanel::addLastRow(QGridLayout* grid)
{
    m_family->setObjectName(QStringLiteral("family"));
    m_family->setAccessibleName(tr("Family to write through"));
    m_family->view()->setAccessibleName(m_family->accessibleName());
    m_family->addItems({tr("Wide family"), tr("Narrow family")});
    auto* label = new QLabel(tr("Throu&gh:"));
    label->setBuddy(m_family);
    m_backup->setObjectName(QStringLiteral("backup"));
    m_backup->setChecked(true);
    m_backup->setToolTip(tr("Copies the file beside itself, as .bak, before it is written."));
    auto* write = glowing(new QPushButton(tr("&Write")));
    write->setObjectName(QStringLiteral("write"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_family);
    row->addWidget(m_backup);
    row->addStretch(1);
    row->addWidget(makeDeleteButton());
    row->addWidget(write);
    grid->addWidget(label, 2, 0);
    grid->addLayout(row, 2, 1, 1, 3);
    connect(write, &QPushButton::clicked, this, &ProfileEditPanel::writeRequested);
}

QPushButton* ProfileEditPanel::makeDeleteButton()
{
    auto* button = glowing(new QPushButton(tr("Dele&te")));
    button->setObjectName(QStringLiteral("delete"));
    button->setToolTip(tr("Takes lines out of the file: neither family of calls can delete."));
    auto* menu = new QMenu(button);
    const auto add = [this, menu](const QString& text, ProfileChange::Action action) {
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, action] { emit deletionRequested(action); });
    };
    add(tr("This &key"), ProfileChange::Action::DeleteKey);
    add(tr("The whole &section"), ProfileChange::Action::DeleteSection);
    button->setMenu(menu);
    return button;
}

void ProfileEditPanel::setReading(const ProfileReading& reading)
{
    m_reading = reading;
    m_section->setText(reading.section);
    m_key->setText(reading.key);
    m_value->setText(change().family == ProfileFamily::Narrow ? reading.narrow
                                                              : reading.wide.value_or(QString()));
    m_value->setPlaceholderText(reading.isRead ? QString() : tr("Not read yet"));
}

void ProfileEditPanel::updateReading(const ProfileReading& reading)
{
    if (isUntouched())
        setReading(reading);
}

// The fields still hold the reading and not what the user typed.
bool ProfileEditPanel::isUntouched() const
{
    return m_section->text() == m_reading.section && m_key->text() == m_reading.key &&
           !m_value->isModified();
}

bool ProfileEditPanel::isWaiting() const
{
    return !m_reading.isRead && isUntouched();
}

// Follows the family.
void ProfileEditPanel::showValue()
{
    updateReading(m_reading);
}

void ProfileEditPanel::editValue()
{
    m_value->setFocus(Qt::ShortcutFocusReason);
    m_value->selectAll();
}

ProfileChange ProfileEditPanel::change() const
{
    return {m_family->currentIndex() == 0 ? ProfileFamily::Wide : ProfileFamily::Narrow,
            m_section->text(), m_key->text(), m_value->text()};
}

bool ProfileEditPanel::keepsBackup() const
{
    return m_backup->isChecked();
}

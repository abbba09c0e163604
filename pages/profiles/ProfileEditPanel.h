#pragma once

#include "inspection/profiles/ProfileReading.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

/// Takes what is to be written: section, key, value, the family and whether to keep a copy.
class ProfileEditPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit ProfileEditPanel(QWidget* parent = nullptr);

    /// Shows a reading to be edited: the value as the chosen family reads it.
    void setReading(const ProfileReading& reading);
    /// The same for a reading that was read again: what the user has typed stays.
    void updateReading(const ProfileReading& reading);
    /// Puts the keyboard on the value.
    void editValue();

    ProfileChange change() const;
    bool keepsBackup() const;
    /// True where the fields show nothing but a reading that has yet to be read.
    bool isWaiting() const;

signals:
    void writeRequested();
    /// What is to be deleted is named by the fields.
    void deletionRequested(ProfileChange::Action action);

private:
    QLineEdit* addInput(QGridLayout* grid, int row, int column, int span, const QString& label,
                        const char* objectName);
    void addLastRow(QGridLayout* grid);
    QPushButton* makeDeleteButton();
    bool isUntouched() const;
    void showValue();

    QLineEdit* m_section;
    QLineEdit* m_key;
    QLineEdit* m_value;
    QComboBox* m_family;
    QCheckBox* m_backup;
    ProfileReading m_reading;
};

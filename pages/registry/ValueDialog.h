#pragma once

#include "platform/WindowsTypes.h"

#include <QDialog>

#include <functional>

class DataField;
class ListedValue;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class ValueInput;

/// Asks for a value: name, type and data. What is typed is checked at once: a problem stands below
/// and keeps the button off; what the registry will change is told there before it happens. Of a
/// value that exists the stored text is shown, and what would replace it.
class ValueDialog : public QDialog
{
    Q_OBJECT

public:
    /// Why a value cannot have a name, in words; empty for one that it can have.
    using NameProblem = std::function<QString(const QString& name)>;

    /// For a new value of the given type.
    ValueDialog(unsigned int type, NameProblem nameProblem, QWidget* parent);
    /// For a value that exists: its name is fixed. One that cannot be read is offered as an empty
    /// text.
    ValueDialog(const ListedValue& value, QWidget* parent);

    QString name() const;
    unsigned int type() const;
    /// Ready for RegSetValueExW; meaningful once accepted.
    QByteArray data() const;
    /// True for a value that exists while nothing is typed that would change its stored text.
    bool isUnchanged() const;

private:
    struct Original
    {
        unsigned int type = REG_NONE;
        QByteArray data;
        QString raw;
        QString remark; ///< why it cannot be read, or is read as something else
    };

    void build();
    void addStored(const ListedValue& value);
    QString storedText() const;
    QString warning(const ValueInput& input) const;
    void arrangeField();
    void check();
    void tellReplaced();
    void showNote(const QString& text, bool isProblem);

    NameProblem m_nameProblem;
    QFormLayout* m_form;
    QLineEdit* m_name;
    QComboBox* m_type;
    DataField* m_data;
    QCheckBox* m_several;
    QLabel* m_replaced = nullptr; ///< null for a new value
    QLabel* m_noteIcon;
    QLabel* m_note;
    QPushButton* m_ok = nullptr;
    Original m_original; ///< of a value that exists
};

#pragma once

#include "platform/WindowsTypes.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class ValueInput;

/// Asks for a value: name, type and data. What is typed is checked at once: a problem stands below
/// and keeps the button off; what the registry will change is told there before it happens.
class ValueDialog : public QDialog
{
    Q_OBJECT

public:
    /// For a new value of the given type.
    ValueDialog(unsigned int type, QWidget* parent);
    /// For a value that exists: its name is fixed.
    ValueDialog(const QString& name, unsigned int type, const QByteArray& data, QWidget* parent);

    QString name() const;
    unsigned int type() const;
    /// Ready for RegSetValueExW; meaningful once accepted.
    QByteArray data() const;

private:
    struct Original
    {
        unsigned int type = REG_NONE;
        QByteArray data;
        QString shown;
    };

    void build();
    bool isUnchanged() const;
    QString warning(const ValueInput& input) const;
    void check();
    void showNote(const QString& text, bool isProblem);

    QLineEdit* m_name;
    QComboBox* m_type;
    QPlainTextEdit* m_data;
    QLabel* m_noteIcon;
    QLabel* m_note;
    QPushButton* m_ok = nullptr;
    Original m_original; ///< of a value that exists
};

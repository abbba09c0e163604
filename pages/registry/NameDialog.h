#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a new key, checked while it is typed.
class NameDialog : public QDialog
{
    Q_OBJECT

public:
    /// `parentKey` is shown, as the place where the key goes.
    NameDialog(const QString& parentKey, QWidget* parent);

    QString name() const;

private:
    void check();

    QLineEdit* m_name;
    QLabel* m_note;
    QPushButton* m_ok;
};

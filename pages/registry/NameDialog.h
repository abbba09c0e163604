#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a key or of a value, checked while it is typed.
class NameDialog : public QDialog
{
    Q_OBJECT

public:
    /// Why a name cannot be had, in words; empty for one that can.
    using Problem = std::function<QString(const QString& name)>;

    /// `key` is shown, as the place where the name goes. `first` is what stands in the line.
    NameDialog(const QString& title, const QString& key, Problem problem, QWidget* parent,
               const QString& first = QString());

    QString name() const;

private:
    void check();

    Problem m_problem;
    QLineEdit* m_name;
    QLabel* m_note;
    QPushButton* m_ok;
};

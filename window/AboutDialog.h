#pragma once

#include <QDialog>

class QFormLayout;

/// Says what runs: the program and its version, Qt, the host library and its settings store. Its
/// texts can be selected and copied.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);

private:
    void addRow(QFormLayout& form, const QString& caption, const QString& text,
                const char* objectName);
    void copy() const;

    QString m_lines;
};

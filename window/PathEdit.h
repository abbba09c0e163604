#pragma once

#include <QLineEdit>

/// A line for a path. A path that does not fit shows both of its ends while nobody edits it.
class PathEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathEdit(QWidget* parent = nullptr);

    /// What can be seen while the line does not have the keyboard: the text, or the text with its
    /// middle left out.
    QString shown() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect room() const;
};

#pragma once

#include <QStatusBar>

/// The window's bottom line: the host library in use, the settings store's file and the language.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

private:
    void add(const QString& caption, QWidget* value, int stretch);
};

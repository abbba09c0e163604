#pragma once

#include <QStatusBar>

class PathLabel;

/// The window's bottom line: the host library in use, the settings store's file and the language.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

signals:
    /// The button for the help has been pressed.
    void helpRequested();

private:
    void addHelp();
    void addText(const QString& caption, const QString& text, int stretch);
    void addPath(const QString& caption, PathLabel* path, int stretch);
    void add(const QString& caption, QWidget* value, int stretch);
};

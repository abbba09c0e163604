#pragma once

#include <QWidget>

/// The application's window. Construct it after the translators are installed.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
};

#pragma once

#include "window/PageCatalogue.h"

#include <QDialog>

class QTextBrowser;

/// Says what each page answers, which calls are wide and which narrow, and which keys there are. It
/// stands beside the main window, which can be used meanwhile.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    /// Ctrl+Q closes the parent too, as it does there.
    explicit HelpWindow(const std::vector<PageEntry>& pages, QWidget* parent = nullptr);

    /// Shows itself, at the part about the page of this name, and takes the keyboard.
    void showAt(const QString& page);

private:
    void showAbout();
    void closeAll();

    QTextBrowser* m_text;
};

#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class FileOpener;
class HelpWindow;
class Page;
class PageRail;
class PageStack;
class StoreWatch;

/// The application's window: a rail of buttons, the pages, and a status line. Construct it after
/// the translators are installed. That takes little time, because a page is made on its first
/// visit.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens on the page of this name, without sliding. Each page has one, such as "registry"; an
    /// unknown name changes nothing. Call it before the window is shown.
    void showPage(const QString& name);

    /// Opens on the page for this kind of file, which then opens the file; does nothing where there
    /// is none, or no path. Call it before the window is shown.
    void openFile(const QString& path);

    /// The page in view; null until it has been made.
    Page* currentPage() const;

protected:
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;

private:
    void addShortcuts(int pages);
    void addShortcut(const QKeySequence& keys, void (*operation)(Page& page));
    void showHelp();
    void logPage(int page);

    /// Watches from the beginning, so that a page knows what happens before it is made.
    std::unique_ptr<const StoreWatch> m_storeWatch;
    std::vector<QString> m_names;
    PageRail* m_rail;
    PageStack* m_stack;
    FileOpener* m_opener;
    HelpWindow* m_help = nullptr; ///< made when it is asked for
};

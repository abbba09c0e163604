#pragma once

#include <QObject>

class KeyTree;
class ListedValue;
class PageContext;
class QAction;
class QKeySequence;
class QLayout;
class QMenu;
class QPushButton;
class RegistryClipboard;
class RegistryEditor;
class RegistryHistory;
class RegistryRemover;
class RegistryRenamer;
class RegistryTransfer;
class StoreGate;
class StoreWatch;
class ValueTable;

/// What can be done with the key that is selected and with its values: the actions of the two
/// views and the buttons that do the same.
class RegistryActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open over `window`, which owns this object too. The watch and the views outlive it.
    RegistryActions(PageContext& page, StoreWatch& watch, KeyTree& tree, ValueTable& table,
                    QWidget* window);

    QPushButton* makeCopyButton() const;
    QLayout* makeButtons();
    /// Shows what importing this file would do.
    void importFrom(const QString& file);

signals:
    /// The store has changed; this key, and this value of it unless empty, is to be looked at.
    void changed(const QString& path, const QString& name);
    /// What the views show is no longer what the store has.
    void outdated();
    void searchRequested();

private:
    void makeActions();
    void makeKeyActions();
    void makeValueActions();
    void fillMenus();
    void connectParts();
    QAction* make(const QString& text);
    QAction* make(const QString& text, void (RegistryActions::*slot)());
    QAction* makeChange(const QString& text, void (RegistryActions::*slot)());
    QMenu* makeNewMenu();
    void enable(bool anySelected);
    void rememberView(const QWidget* before, QWidget* now);
    void change(void (RegistryActions::*slot)());
    void editValue();
    void renameValue();
    void removeChosen();
    void removeValues();
    void copyData();
    void copyValues();
    void renameKey();
    void removeKey();
    void copyPath();
    void copyKey();
    void exportKey();
    void importFile();
    bool isKeyThere();
    bool isValueThere();
    void reportGone(const QString& what);

    PageContext& m_page;
    KeyTree& m_tree;
    ValueTable& m_table;
    QWidget* m_window;
    StoreGate* m_gate; ///< every action that changes the store goes through it
    RegistryHistory* m_history;
    RegistryEditor* m_editor;
    RegistryRenamer* m_renamer;
    RegistryRemover* m_remover;
    RegistryTransfer* m_transfer;
    RegistryClipboard* m_clipboard;
    QWidget* m_lastView = nullptr; ///< the view that had the keyboard last
    QMenu* m_newMenu = nullptr;
    QAction* m_renameKey = nullptr;
    QAction* m_removeKey = nullptr;
    QAction* m_copyPath = nullptr;
    QAction* m_copyKey = nullptr;
    QAction* m_edit = nullptr;
    QAction* m_renameValue = nullptr;
    QAction* m_removeValue = nullptr;
    QAction* m_copyData = nullptr;
    QAction* m_copyValues = nullptr;
    QAction* m_search = nullptr;
    QAction* m_export = nullptr;
    QAction* m_import = nullptr;
};

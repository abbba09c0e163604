#pragma once

#include "window/Page.h"

class EmptyHint;
class FindPane;
class QAction;
class QLineEdit;
class QMenu;
class QModelIndex;
class QTableView;
class QTreeView;
class RegistryEditor;
class RegistryTreeModel;
class RegistryTransfer;
class StoreOpeningJob;
class RegistryValueModel;

/// The registry as a host library finds it: the keys, the values of one of them, and every change
/// that the service offers.
class RegistryPage : public Page
{
    Q_OBJECT

public:
    explicit RegistryPage(QWidget* parent = nullptr);
    ~RegistryPage() override;

    void refresh() override;
    void find() override;
    void entered() override;

    /// Selects a key, or the nearest one above it, and a value of it unless `name` is empty.
    void goTo(const QString& path, const QString& name = QString());

    RegistryTransfer& transfer() const { return *m_transfer; }

private:
    void makeActions();
    void makeTree();
    void makeTable();
    QLayout* makeAddressLine();
    QLayout* makeButtons();
    QMenu* makeNewMenu();
    QAction* action(const QString& text, void (RegistryPage::*slot)());
    void connectParts();
    QString path() const;
    void showKey(const QModelIndex& current);
    void readFirst();
    void showRemark(const QModelIndex& current);
    void refreshEntered();
    void reportStore();
    void enableActions();
    void openAddress();
    bool openKey(const QString& wanted);
    bool isKeyThere();
    void reportGone(const QString& what);
    void editValue();
    void rememberView(const QWidget* before, QWidget* now);
    void removeChosen();
    void removeSelected();
    void removeKey();
    void copyPath();
    void copyValue();
    void exportKey();
    void importFile();
    void search(const QString& text, bool inNames, bool inData);
    void afterChange(const QString& changedPath, const QString& name);
    void selectValue(const QString& name);

    RegistryTreeModel* m_keys;
    RegistryValueModel* m_values;
    RegistryEditor* m_editor;
    RegistryTransfer* m_transfer;
    QLineEdit* m_address;
    QTreeView* m_tree;
    QTableView* m_table;
    FindPane* m_find;
    std::unique_ptr<StoreOpeningJob> m_opening; ///< of the store, before it is listed
    JobRunner m_openingRunner;
    EmptyHint* m_hint = nullptr;
    QWidget* m_lastView = nullptr; ///< that had the keyboard
    bool m_read = false;           ///< the store has been listed
    QMenu* m_newMenu = nullptr;
    QAction* m_edit = nullptr;
    QAction* m_removeValue = nullptr;
    QAction* m_removeKey = nullptr;
    QAction* m_copyPath = nullptr;
    QAction* m_copyValue = nullptr;
    QAction* m_export = nullptr;
    QAction* m_import = nullptr;
};

#pragma once

#include "app/pages/registry/RegistryPage.h"
#include "tests/app/registry/RegistryTest.h"

class QDialog;
class QTableView;
class QTreeView;

/// The registry page in a window of its own, on the stand-in's store.
class RegistryPageFixture : public RegistryTest
{
protected:
    /// Shows the page; fill the store before.
    void show();

    QTreeView& tree() const;
    QTableView& table() const;
    QString cell(int row, int column) const;
    /// The key that is selected, as the address line shows it.
    QString address() const;
    QString status() const { return m_page.statusText(); }

    /// Chooses an entry of the menu of new things, counted without the separator.
    void chooseNew(int entry);
    /// The dialog that is open.
    static QDialog& dialog();
    static void type(const QString& name, const QString& data);
    /// Presses the dialog's button for Enter; false when it is off.
    static bool accept();
    static void reject();

    RegistryPage m_page;
};

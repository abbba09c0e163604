#pragma once

#include "pages/registry/RegistryPage.h"
#include "pages/registry/RegistryTransfer.h"
#include "tests/inspection/registry/RegistryTest.h"
#include "tests/support/WaitFor.h"

#include <QMap>
#include <QTest>
#include <QUndoStack>

class QDialog;
class QLineEdit;
class QPlainTextEdit;
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
    RegistryTransfer& transfer() const { return *m_page.findChild<RegistryTransfer*>(); }
    QString status() const { return m_page.statusText(); }

    /// The entries of the menu of new things.
    enum NewEntry
    {
        NewKey,
        NewString,
        NewDword,
        NewQword,
        NewBinary
    };
    void chooseNew(NewEntry entry);
    /// Chooses "Export key..." in the tree's menu.
    void chooseExport();
    /// Chooses an entry of a view's menu.
    static void choose(const QWidget& view, const QString& text);

    /// Undoes or redoes a change, and waits for the job.
    void undo();
    void redo();
    /// What stands in the log.
    static QString logged();
    /// All entries of the store.
    static QMap<QString, QVariant> entries();

    /// The dialog that is open, or opens soon.
    static QDialog& dialog();
    static void type(const QString& name, const QString& data);
    /// The field for data that is in view; null where that is the other one.
    static QLineEdit* lineField();
    static QPlainTextEdit* largeField();
    /// Imports or exports, and waits until the job that reads or writes the file has ended.
    void importFile(const QString& file)
    {
        transfer().importFile(file);
        settle();
    }
    void exportKey(const QString& path, const QString& file, RegFileWriter::Encoding encoding)
    {
        transfer().exportKey(path, file, encoding);
        settle();
    }
    void settle()
    {
        ASSERT_TRUE(waitFor([this] { return !m_page.isBusy(); }));
    }

    /// Presses the dialog's button for Enter, and waits for the job that follows; false when the
    /// button is off.
    bool accept() const;
    static void reject();
    /// All words in the dialog that is open.
    static QString words();
    /// Gives the keyboard to one of the views.
    static void focus(QWidget& view);
    /// Presses Delete with the keyboard in one of the views.
    static void pressDelete(QWidget& view);

    RegistryPage m_page;
};

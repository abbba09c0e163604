#include "tests/pages/registry/RegistryPageFixture.h"

#include "app/ApplicationLog.h"
#include "host/HostLibraries.h"
#include "pages/registry/DataField.h"
#include "tests/support/WaitFor.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

constexpr int longestWait = 300000; // milliseconds: for emulated and watched machines

} // namespace

void RegistryPageFixture::show()
{
    m_page.resize(700, 500);
    m_page.show();
    ASSERT_TRUE(waitForActive(&m_page));
    m_page.refresh();
}

QTreeView& RegistryPageFixture::tree() const
{
    return *m_page.findChild<QTreeView*>();
}

QTableView& RegistryPageFixture::table() const
{
    return *m_page.findChild<QTableView*>("values");
}

QString RegistryPageFixture::cell(int row, int column) const
{
    return table().model()->index(row, column).data().toString();
}

QString RegistryPageFixture::address() const
{
    return m_page.findChild<QLineEdit*>("address")->text();
}

void RegistryPageFixture::chooseNew(NewEntry entry)
{
    QList<QAction*> actions = m_page.findChild<QMenu*>()->actions();
    for (QAction* action : m_page.findChild<QMenu*>()->actions()) {
        if (action->isSeparator())
            actions.removeOne(action);
    }
    actions.at(entry)->trigger();
}

void RegistryPageFixture::chooseExport()
{
    choose(tree(), "Export key...");
}

void RegistryPageFixture::choose(const QWidget& view, const QString& text)
{
    const QList<QAction*> actions = view.actions();
    for (QAction* action : actions) {
        if (action->text() == text)
            return action->trigger();
    }
    qFatal("no such action: %s", qPrintable(text));
}

void RegistryPageFixture::undo()
{
    m_page.undoStack().undo();
    settle();
}

void RegistryPageFixture::redo()
{
    m_page.undoStack().redo();
    settle();
}

QString RegistryPageFixture::logged()
{
    QFile file(ApplicationLog::path());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QMap<QString, QVariant> RegistryPageFixture::entries()
{
    QMap<QString, QVariant> all;
    for (const QString& path : g_globalSettings->allKeys())
        all.insert(path, g_globalSettings->value(path));
    return all;
}

QDialog& RegistryPageFixture::dialog()
{
    // A job that finds out what to ask comes before some dialogs.
    QDialog* open = nullptr;
    const auto isOpen = [&open] {
        open = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        return open != nullptr;
    };
    if (!QTest::qWaitFor(isOpen, longestWait))
        qFatal("no dialog is open");
    return *open;
}

void RegistryPageFixture::type(const QString& name, const QString& data)
{
    auto* line = dialog().findChild<QLineEdit*>();
    if (!line->isReadOnly())
        line->setText(name);
    if (!dialog().findChild<DataField*>())
        return;
    if (QPlainTextEdit* large = largeField())
        large->setPlainText(data);
    else
        lineField()->setText(data);
}

QLineEdit* RegistryPageFixture::lineField()
{
    auto* field = dialog().findChild<DataField*>()->findChild<QLineEdit*>();
    return field->isVisible() ? field : nullptr;
}

QPlainTextEdit* RegistryPageFixture::largeField()
{
    auto* field = dialog().findChild<QPlainTextEdit*>();
    return field->isVisible() ? field : nullptr;
}

bool RegistryPageFixture::accept() const
{
    for (QPushButton* button : dialog().findChildren<QPushButton*>()) {
        auto* box = dialog().findChild<QDialogButtonBox*>();
        const auto role = box->buttonRole(button);
        if (role != QDialogButtonBox::AcceptRole)
            continue;
        const bool enabled = button->isEnabled();
        if (enabled)
            button->click();
        return enabled && QTest::qWaitFor([this] { return !m_page.isBusy(); }, longestWait);
    }
    return false;
}

void RegistryPageFixture::reject()
{
    QTest::keyClick(&dialog(), Qt::Key_Escape);
}

QString RegistryPageFixture::words()
{
    QStringList texts;
    for (const QLabel* label : dialog().findChildren<QLabel*>())
        texts.append(label->text());
    return texts.join('|');
}

// A dialog that has just closed may still be the active window.
void RegistryPageFixture::focus(QWidget& view)
{
    view.activateWindow();
    view.setFocus();
    EXPECT_TRUE(waitFor([&view] { return view.isActiveWindow() && view.hasFocus(); }));
}

void RegistryPageFixture::pressDelete(QWidget& view)
{
    focus(view);
    QTest::keyClick(&view, Qt::Key_Delete);
}

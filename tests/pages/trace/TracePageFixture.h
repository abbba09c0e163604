#pragma once

#include "tests/pages/PageFixture.h"
#include "tests/support/MadeRecording.h"

#include <QComboBox>
#include <QFile>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

/// The page of recordings in the real window.
class TracePageFixture : public PageFixture
{
protected:
    using Made = MadeRecording;

    void SetUp() override { open("trace"); }

    QString path(const char* name = "a.trace") const
    {
        return m_folder.filePath(QLatin1String(name));
    }
    void write(const QByteArray& bytes, QIODevice::OpenMode mode = QIODevice::WriteOnly,
               const char* name = "a.trace") const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(mode));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// Opens a recording of these bytes and waits until it is shown.
    void take(const QByteArray& bytes)
    {
        write(bytes);
        page()->openFile(path());
        waitForJob();
    }

    template <typename Control>
    Control* part(const char* name)
    {
        return page()->findChild<Control*>(QLatin1String(name));
    }
    const QAbstractItemModel& model(const char* table) { return *part<QTableView>(table)->model(); }
    /// What stands in a column of a table, row by row.
    QStringList column(const char* table, int column)
    {
        const QAbstractItemModel& rows = model(table);
        QStringList texts;
        for (int row = 0; row < rows.rowCount(); ++row)
            texts += rows.index(row, column).data().toString();
        return texts;
    }
    QStringList numbers() { return column("calls", 0); }
    void choose(const char* table, int row) { part<QTableView>(table)->selectRow(row); }
    QString details() { return part<QPlainTextEdit>("details")->toPlainText(); }
    void chooseTab(int tab) { page()->findChild<QTabWidget*>()->setCurrentIndex(tab); }

    static QByteArray ended() { return "{\"ended\":{\"calls\":5,\"time\":100}}\n"; }
    /// A key that is opened, asked for two values and closed, and one that is not there.
    static Made usual()
    {
        return Made()
            .add(Made::open("HKEY_CURRENT_USER", "Harbour", "0x5581"))
            .add(Made::query("0x5581", "Size", "07000000"))
            .add(Made::query("0x5581", "Colour", ""))
            .add(Made::close("0x5581"))
            .add(Made::open("HKEY_CURRENT_USER", "Nowhere", ""));
    }

    QTemporaryDir m_folder;
};

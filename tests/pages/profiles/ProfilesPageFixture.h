#pragma once

#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/WindowProbe.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

/// The page in the real window, and a profile whose lines the families read differently.
class ProfilesPageTest : public testing::Test
{
protected:
    void SetUp() override { m_file.write(text); }

    static constexpr char text[] = "; by hand\n[Net]\nHost=one\nQuery=a=b\n\n[Net]\nMask=255\n";

    void open(const QString& path) const
    {
        m_probe.type("file", path);
        QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
        ASSERT_TRUE(m_probe.settle());
    }
    void open() const { open(m_file.path()); }

    const QAbstractItemModel& model(const char* view) const
    {
        return *m_probe.control<QTableView>(view).model();
    }
    // A row's cells.
    QStringList row(const char* view, int number) const
    {
        QStringList cells;
        for (int column = 0; column < model(view).columnCount(); ++column)
            cells << model(view).index(number, column).data().toString();
        return cells;
    }

    void request(const QString& section, const QString& key, const QString& value, int family) const
    {
        m_probe.control<QComboBox>("family").setCurrentIndex(family);
        m_probe.type("section", section);
        m_probe.type("key", key);
        m_probe.type("value", value);
        m_probe.click("write");
        EXPECT_TRUE(m_probe.settle());
    }
    // The dialog that asks before more changes than what was asked for.
    static QDialog* question() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    void accept() const
    {
        ASSERT_NE(question(), nullptr);
        question()->findChild<QPushButton*>(QStringLiteral("writeAllTheSame"))->click();
        ASSERT_TRUE(m_probe.settle());
    }
    // The rows of its table that tell of a change: sign, reason and text.
    static QStringList changedLines()
    {
        QStringList lines;
        const auto* table = question()->findChild<QTableView*>(QStringLiteral("difference"));
        const QAbstractItemModel& rows = *table->model();
        for (int row = 0; row < rows.rowCount(); ++row) {
            const auto cell = [&rows, row](int column) {
                return rows.index(row, column).data().toString();
            };
            if (cell(0) == QStringLiteral("−") || cell(0) == QStringLiteral("+"))
                lines << (cell(0) + cell(4) + '|' + cell(5));
        }
        return lines;
    }
    // A sentence of the dialog; empty where it is not shown.
    static QString sentence(const char* name)
    {
        const auto* label = question()->findChild<QLabel*>(QLatin1String(name));
        return label->isHidden() ? QString() : label->text();
    }
    QStringList files() const { return QDir(m_file.folder()).entryList(QDir::Files, QDir::Name); }
    QString status() const { return m_probe.page().statusText(); }

    static constexpr int wide = 0;
    static constexpr int narrow = 1;

    ProfileFixture m_file;
    WindowProbe m_probe{"profiles"};
};

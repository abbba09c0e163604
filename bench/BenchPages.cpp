#include "bench/BenchPages.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableWidget>

std::unique_ptr<QWidget> makeTablePage()
{
    constexpr int rows = 200;
    constexpr int columns = 8;
    auto table = std::make_unique<QTableWidget>(rows, columns);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            table->setItem(
                row, column,
                new QTableWidgetItem(QStringLiteral("Entry %1.%2").arg(row).arg(column)));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setAlternatingRowColors(true);
    return table;
}

std::unique_ptr<QWidget> makeFormPage()
{
    constexpr int fields = 40;
    auto page = std::make_unique<QWidget>();
    auto* columns = new QHBoxLayout(page.get());
    QFormLayout* form = nullptr;
    for (int field = 0; field < fields; ++field) {
        if (field % 20 == 0) {
            form = new QFormLayout;
            columns->addLayout(form);
        }
        form->addRow(QStringLiteral("Field %1:").arg(field),
                     new QLineEdit(QStringLiteral("value of field %1").arg(field)));
    }
    return page;
}

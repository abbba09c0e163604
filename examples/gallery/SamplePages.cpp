#include "examples/gallery/SamplePages.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

#include <array>

namespace {

constexpr std::array<const char*, 8> fieldNames = {"Name",  "Vessel", "Berth", "Cargo",
                                                   "Draft", "Length", "Agent", "Remarks"};
constexpr std::array<const char*, 8> fieldValues = {
    "North quay", "Marianne", "14 west", "Timber", "7.2 m", "118 m", "Hansen", "Two cranes"};

// A page that is clearly one: white, with a thin border.
QWidget* makeSheet(QWidget* parent)
{
    auto* page = new QFrame(parent);
    page->setFrameStyle(QFrame::StyledPanel);
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::Base);
    return page;
}

} // namespace

QWidget* makeFormPage(int fields, QWidget* parent)
{
    QWidget* page = makeSheet(parent);
    auto* form = new QFormLayout(page);
    form->setContentsMargins(20, 20, 20, 20);
    form->setSpacing(10);
    for (std::size_t i = 0; i < fieldNames.size() && static_cast<int>(i) < fields; ++i)
        form->addRow(QStringLiteral("%1:").arg(QLatin1String(fieldNames[i])),
                     new QLineEdit(QLatin1String(fieldValues[i])));
    return page;
}

QWidget* makeTablePage(QWidget* parent)
{
    auto* table = new QTableWidget(200, 3, parent);
    table->setHorizontalHeaderLabels(
        {QStringLiteral("Berth"), QStringLiteral("Vessel"), QStringLiteral("Length")});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->hide();
    table->setAlternatingRowColors(true);
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(QString::number(row + 1)));
        table->setItem(row, 1,
                       new QTableWidgetItem(QStringLiteral("Vessel %1").arg(row * 37 % 91)));
        table->setItem(row, 2,
                       new QTableWidgetItem(QStringLiteral("%1 m").arg(60 + row * 7 % 140)));
    }
    return table;
}

QWidget* makeTextPage(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setFrameStyle(QFrame::StyledPanel);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Base);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(24);
    label->setText(QStringLiteral("<h1>Sliding pages</h1><p>\"Previous\" brings the preceding page "
                                  "in from the left, \"Next\" the following one from the "
                                  "right.</p><p>While a slide runs, requests are ignored.</p>"));
    return label;
}

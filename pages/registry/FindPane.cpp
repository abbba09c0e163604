#include "pages/registry/FindPane.h"

#include "pages/registry/HitModel.h"
#include "window/EmptyHint.h"
#include "window/Page.h"
#include "window/ViewLook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

FindPane::FindPane(QWidget* parent)
    : QWidget(parent),
      m_model(new HitModel(this)),
      m_text(new QLineEdit),
      m_inNames(new QCheckBox(tr("N&ames"))),
      m_inData(new QCheckBox(tr("&Values"))),
      m_table(new QTableView)
{
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setPlaceholderText(tr("Text to find"));
    m_inNames->setChecked(true);
    m_inData->setChecked(true);
    m_table->setModel(m_model);
    arrangeTable(*m_table);
    m_table->setObjectName(QStringLiteral("found"));
    m_table->setAccessibleName(tr("Found"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    fitColumns(*m_table, {QStringLiteral("HKEY_CURRENT_USER\\Software\\Maker\\Program")});
    m_hint = new EmptyHint(m_table, tr("What is found is listed here; Enter goes to it."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeLine());
    layout->addWidget(m_table, 1);
    connect(m_table, &QTableView::activated, this, [this](const QModelIndex& index) {
        emit chosen(m_model->hit(index.row()).path, m_model->hit(index.row()).name);
    });
}

QWidget* FindPane::makeLine()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* search = glowing(new QPushButton(tr("Find no&w")));
    auto* closeButton = glowing(new QPushButton(tr("&Hide")));
    layout->addWidget(m_text, 1);
    layout->addWidget(m_inNames);
    layout->addWidget(m_inData);
    layout->addWidget(search);
    layout->addWidget(closeButton);
    connect(m_text, &QLineEdit::returnPressed, this, &FindPane::request);
    connect(search, &QPushButton::clicked, this, &FindPane::request);
    connect(closeButton, &QPushButton::clicked, this, &FindPane::close);
    return line;
}

void FindPane::open()
{
    show();
    m_text->setFocus();
    m_text->selectAll();
}

void FindPane::close()
{
    hide();
    emit closed();
}

void FindPane::request()
{
    if (m_text->text().isEmpty())
        emit refused(tr("Type the text to find first."));
    else if (!m_inNames->isChecked() && !m_inData->isChecked())
        emit refused(tr("Choose where to search: in names, in values, or in both."));
    else
        emit searchRequested(m_text->text(), m_inNames->isChecked(), m_inData->isChecked());
}

void FindPane::setHits(const std::vector<RegistrySearchJob::Hit>& hits)
{
    m_model->setHits(hits);
    m_hint->setText(tr("Nothing was found."));
    if (hits.empty())
        return;
    m_table->setCurrentIndex(m_model->index(0, 0));
    m_table->setFocus();
}

void FindPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

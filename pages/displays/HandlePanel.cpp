#include "pages/displays/HandlePanel.h"

#include "platform/PlatformServicesImp.h"
#include "window/EmptyHint.h"
#include "window/ShownText.h"
#include "window/ViewLook.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

namespace {

constexpr int largestSide = 4096;
constexpr int firstSide = 64;

IPlatformResourceManager* service()
{
    return g_PlatformServices.resourceManager();
}

void* pointer(int handle)
{
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(handle));
}

} // namespace

HandlePanel::HandlePanel(QWidget* parent)
    : QWidget(parent), m_model(new HandleModel(this)), m_view(new QTableView)
{
    makeTable();
    auto* note = new QLabel(tr("A brush of colour 0 is not listed: the service answers for it as "
                               "for a free number."));
    note->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addWidget(note);
    layout->addWidget(makeTools());
    setFocusProxy(m_view);
}

void HandlePanel::makeTable()
{
    m_view->setModel(m_model);
    m_view->setAccessibleName(tr("Graphics handles"));
    arrangeTable(*m_view);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    auto* action = new QAction(tr("Delete handle"), m_view);
    action->setShortcut(QKeySequence::Delete);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, &HandlePanel::remove);
    m_view->addAction(action);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    new EmptyHint(m_view,
                  tr("No graphics handle is alive. Host libraries make them with createImage "
                     "and createBrush; below you can do the same."));
}

QWidget* HandlePanel::makeTools()
{
    auto* place = new QWidget;
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins(0, 0, 0, 0);
    m_width = addSize(row, tr("Width"));
    row->addWidget(new QLabel(QStringLiteral("\u00d7")));
    m_height = addSize(row, tr("Height"));
    addButton(row, tr("&New image"), &HandlePanel::createImage);
    row->addStretch();
    m_color = new QLineEdit(QStringLiteral("0x0000FF"));
    m_color->setAccessibleName(tr("Colour of a brush, in hexadecimal"));
    m_color->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0x0000000000000")));
    connect(m_color, &QLineEdit::returnPressed, this, &HandlePanel::createBrush);
    row->addWidget(m_color);
    addButton(row, tr("New &brush"), &HandlePanel::createBrush);
    row->addStretch();
    addButton(row, tr("Dele&te..."), &HandlePanel::remove);
    return place;
}

QSpinBox* HandlePanel::addSize(QHBoxLayout* row, const QString& caption)
{
    auto* spin = new QSpinBox;
    spin->setRange(1, largestSide);
    spin->setValue(firstSide);
    spin->setAccessibleName(caption);
    spin->setToolTip(caption);
    row->addWidget(spin);
    return spin;
}

void HandlePanel::addButton(QHBoxLayout* row, const QString& caption, void (HandlePanel::*slot)())
{
    auto* button = glowing(new QPushButton(caption));
    button->setAccessibleName(withoutMnemonic(caption));
    connect(button, &QPushButton::clicked, this, slot);
    row->addWidget(button);
}

void HandlePanel::refresh()
{
    emit scanRequested(std::make_shared<HandleScan>());
}

void HandlePanel::showResult(const HandleScan& scan, bool complete)
{
    m_model->setHandles(scan.found());
    fitColumnsToContents(*m_view);
    const int row = m_model->rowOf(m_selected);
    if (row >= 0)
        m_view->selectRow(row);
    if (!complete)
        emit reported(Page::Report::Warning,
                      tr("Cancelled after %L1 of %L2 numbers; the list is not complete.")
                          .arg(scan.asked())
                          .arg(HandleScan::total));
}

void HandlePanel::createImage()
{
    showNew(service()->createImage(0, m_width->value(), m_height->value()));
}

void HandlePanel::createBrush()
{
    bool isNumber = false;
    const unsigned int color = m_color->text().trimmed().toUInt(&isNumber, 16);
    if (isNumber)
        return showNew(service()->createBrush(color));
    m_color->setFocus();
    emit reported(Page::Report::Warning,
                  tr("The colour must be a hexadecimal number of up to 8 digits, such as "
                     "0x0000FF."));
}

void HandlePanel::showNew(void* handle)
{
    m_selected = static_cast<int>(reinterpret_cast<std::intptr_t>(handle));
    if (handle)
        emit reported(Page::Report::Info, tr("Made handle 0x%1.").arg(m_selected, 0, 16));
    else
        emit reported(Page::Report::Error,
                      tr("The service made no handle: all 65,535 numbers are taken."));
    refresh();
}

bool HandlePanel::confirmDeletion(const QString& name)
{
    QMessageBox box(
        QMessageBox::Question, tr("Delete handle"),
        tr("Delete the handle %1? A host library that still uses it will find nothing there.")
            .arg(name),
        QMessageBox::Yes | QMessageBox::No, this);
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No})
        glowing(qobject_cast<QPushButton*>(box.button(answer)));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void HandlePanel::remove()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid()) {
        emit reported(Page::Report::Warning, tr("Choose a handle first."));
        return;
    }
    const int handle = m_model->handleAt(current.row());
    const QString name = QStringLiteral("0x%1").arg(handle, 0, 16);
    if (!confirmDeletion(name))
        return;
    service()->deleteObject(pointer(handle));
    emit reported(Page::Report::Info, tr("Deleted handle %1.").arg(name));
    refresh();
}

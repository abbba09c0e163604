#include "pages/displays/HandlePanel.h"

#include "inspection/displays/MonitorList.h"
#include "platform/PlatformServicesImp.h"
#include "window/EmptyHint.h"
#include "window/KeptPlace.h"
#include "window/Page.h"
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

#include <algorithm>

namespace {

constexpr int largestSide = 4096;
constexpr int firstSide = 64;

IPlatformResourceManager* service()
{
    return g_PlatformServices.resourceManager();
}

QString handleName(const GraphicsObject& handle)
{
    return handleText(handle.handle);
}

bool isSame(const GraphicsObject& one, const GraphicsObject& other)
{
    return one.handle == other.handle && one.type == other.type && one.object == other.object;
}

std::vector<RecordColumn<GraphicsObject>> columns()
{
    const auto number = [](const GraphicsObject& handle) {
        return SortKey::number(static_cast<double>(reinterpret_cast<quintptr>(handle.handle)));
    };
    return {RecordColumn<GraphicsObject>(HandlePanel::tr("Handle"), &handleName).sortedBy(number),
            {HandlePanel::tr("Type"), &typeText},
            {HandlePanel::tr("Object"), &objectText}};
}

} // namespace

HandlePanel::HandlePanel(PageContext& page, QWidget* parent)
    : QWidget(parent), m_page(page), m_model(columns()), m_view(new QTableView)
{
    makeTable();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addLayout(makeTools());
    setFocusProxy(m_view);
}

void HandlePanel::makeTable()
{
    m_view->setModel(&m_model);
    m_view->setAccessibleName(tr("Graphics handles"));
    arrangeTable(*m_view);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setMinimumHeight(fontMetrics().height() * 5); // for the hint of an empty table
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

QLayout* HandlePanel::makeTools()
{
    auto* row = new QHBoxLayout;
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
    return row;
}

QSpinBox* HandlePanel::addSize(QHBoxLayout* row, const QString& caption)
{
    auto* spin = new QSpinBox;
    spin->setRange(1, largestSide);
    spin->setValue(firstSide);
    // Some styles make the buttons as wide as a word, and leave room for those that there are not.
    spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
    spin->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000000")));
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
    const KeptPlace place(*m_view, [this](int row) { return handleName(m_model.record(row)); });
    m_model.setRecords(graphicsHandles());
    place.restore();
}

bool HandlePanel::lookForChanges()
{
    const std::vector<GraphicsObject> now = graphicsHandles();
    const auto& shown = m_model.records();
    if (std::equal(now.begin(), now.end(), shown.begin(), shown.end(), &isSame))
        return false;
    refresh();
    return true;
}

void HandlePanel::choose(const void* handle)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (m_model.record(row).handle == handle) {
            m_view->selectRow(row);
            return;
        }
    }
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
    m_page.report(PageContext::Report::Warning,
                  tr("The colour must be a hexadecimal number of up to 8 digits, such as "
                     "0x0000FF."));
}

void HandlePanel::showNew(void* handle)
{
    if (handle)
        m_page.report(PageContext::Report::Info, tr("Made handle %1.").arg(handleText(handle)));
    else
        m_page.report(PageContext::Report::Error,
                      tr("The service made no handle: all 65,535 numbers are taken."));
    refresh();
    choose(handle);
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
        m_page.report(PageContext::Report::Warning, tr("Choose a handle first."));
        return;
    }
    const GraphicsObject chosen = m_model.record(current.row());
    const QString name = handleName(chosen);
    if (!confirmDeletion(name))
        return;
    service()->deleteObject(chosen.handle);
    m_page.report(PageContext::Report::Info, tr("Deleted handle %1.").arg(name));
    refresh();
}

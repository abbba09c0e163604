#include "pages/displays/HandleModel.h"

#include "inspection/displays/MonitorList.h"
#include "platform/PlatformServicesImp.h"

#include <algorithm>

void HandleModel::setHandles(std::vector<GraphicsHandle> handles)
{
    beginResetModel();
    m_handles = std::move(handles);
    endResetModel();
}

int HandleModel::rowOf(int handle) const
{
    const auto found = std::find_if(m_handles.begin(), m_handles.end(),
                                    [handle](const auto& entry) { return entry.value == handle; });
    return found == m_handles.end() ? -1 : static_cast<int>(found - m_handles.begin());
}

int HandleModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_handles.size());
}

int HandleModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant HandleModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return text(m_handles[static_cast<std::size_t>(index.row())], index.column());
}

QVariant HandleModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case HandleColumn: return tr("Handle");
    case TypeColumn: return tr("Type");
    default: return tr("Object");
    }
}

QString HandleModel::text(const GraphicsHandle& handle, int column) const
{
    switch (column) {
    case HandleColumn: return QStringLiteral("0x%1").arg(handle.value, 0, 16);
    case TypeColumn:
        return QStringLiteral("%1 (%2)").arg(handle.type()).arg(typeName(handle.type()));
    default: return describe(handle);
    }
}

QString HandleModel::typeName(int type)
{
    switch (type) {
    case IPlatformResourceManager::ObjImage: return tr("image");
    case IPlatformResourceManager::ObjCursor: return tr("cursor image");
    default: return tr("brush");
    }
}

QString HandleModel::describe(const GraphicsHandle& handle)
{
    if (handle.type() == IPlatformResourceManager::ObjBrush)
        return tr("colour 0x%1")
            .arg(reinterpret_cast<quintptr>(handle.object), 8, 16, QLatin1Char('0'));
    BITMAP bitmap{};
    const auto value = reinterpret_cast<void*>(static_cast<std::intptr_t>(handle.value));
    if (g_PlatformServices.resourceManager()->GetBitmap(&bitmap, value) == 0)
        return tr("at %1").arg(handleText(handle.object));
    return tr("%1 \u00d7 %2, %3 bits a pixel, format %4")
        .arg(bitmap.bmWidth)
        .arg(bitmap.bmHeight)
        .arg(bitmap.bmBitsPixel)
        .arg(bitmap.bmType);
}

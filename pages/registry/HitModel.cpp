#include "pages/registry/HitModel.h"

#include "inspection/registry/RegistryPath.h"
#include "window/ShownText.h"

void HitModel::setHits(const std::vector<RegistrySearchJob::Hit>& hits)
{
    beginResetModel();
    m_hits = hits;
    endResetModel();
}

int HitModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_hits.size());
}

int HitModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant HitModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const QString shown = text(hit(index.row()), index.column());
    switch (role) {
    case Qt::DisplayRole: return shown;
    case Qt::ToolTipRole: return plainToolTip(shown);
    default: return {};
    }
}

QString HitModel::text(const RegistrySearchJob::Hit& found, int column)
{
    switch (column) {
    case Key: return RegistryPath::shown(found.path);
    case Name: return found.name;
    case Data: return found.data;
    default: return {};
    }
}

QVariant HitModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Key: return tr("Key");
    case Name: return tr("Name");
    case Data: return tr("Data");
    default: return {};
    }
}

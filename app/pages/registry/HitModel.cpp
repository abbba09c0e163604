#include "app/pages/registry/HitModel.h"

#include "app/pages/registry/RegistryPath.h"

void HitModel::setHits(const std::vector<RegistrySearch::Hit>& hits)
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
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const RegistrySearch::Hit& found = hit(index.row());
    switch (index.column()) {
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

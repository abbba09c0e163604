#include "pages/profiles/ProfileLinesModel.h"

void ProfileLinesModel::setNotFound(const QString& section, const QString& key)
{
    for (int row = 0; row < rowCount(); ++row) {
        const LineReading& wide = record(row).wide;
        if (wide.state == LineState::Entry && wide.section == section && wide.key == key)
            update(row, [](ProfileDocument::Line& line) { line.wide.state = LineState::NotFound; });
    }
}

QVariant ProfileLinesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == ProfileColumns::NumberColumn && role == Qt::TextAlignmentRole)
        return {Qt::AlignRight | Qt::AlignVCenter};
    return RecordsModel::headerData(section, orientation, role);
}

#pragma once

#include "pages/profiles/ProfileColumns.h"

/// The lines of a profile; the header over their numbers stands as the numbers do.
class ProfileLinesModel : public RecordsModel<ProfileDocument::Line>
{
public:
    explicit ProfileLinesModel(QObject* parent = nullptr)
        : RecordsModel(ProfileColumns::ofLines(), parent)
    {
    }

    /// Marks the wide entries of this name as not found.
    void setNotFound(const QString& section, const QString& key);

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
};

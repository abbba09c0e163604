#pragma once

#include "inspection/registry/ListedValue.h"
#include "window/RecordsModel.h"

/// The values of one key: names listed in one go, each value read through the service when it is
/// first looked at.
class RegistryValueModel : public RecordsModel<ListedValue>
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        Type,
        Data,
        Raw
    };

    explicit RegistryValueModel(QObject* parent = nullptr);

    /// Shows the values of this key, read anew.
    /// `names` is used for the root alone, which has the whole store below it.
    void setPath(const QString& path, const RegistryIndex& names);

    /// Reads the value anew, and what the views show of it.
    void refresh(int row);
    /// The row of a name, or -1. A value that can be asked for comes before one that is listed.
    int rowOf(const QString& name) const;
};

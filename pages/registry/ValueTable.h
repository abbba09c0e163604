#pragma once

#include "pages/registry/RegistryValueModel.h"

#include <QTableView>

class EmptyHint;

/// The table of the values of one key.
class ValueTable : public QTableView
{
    Q_OBJECT

public:
    explicit ValueTable(QWidget* parent = nullptr);

    /// Shows the values of a key of the store whose names are given.
    void showKey(const QString& path, const RegistryIndex& names);
    int count() const { return m_values->rowCount(); }

    /// Makes the value of this name the current one where there is one.
    void choose(const QString& name);
    /// The current value; null where there is none.
    const ListedValue* current() const;
    /// Has the current value, which there is, read anew.
    void refreshCurrent();
    /// The values that are selected.
    std::vector<ListedValue> selected() const;

signals:
    /// Whether any value is selected.
    void selectedChanged(bool any);
    /// There is another current value.
    void chosen(const ListedValue& value);

private:
    RegistryValueModel* m_values;
    EmptyHint* m_hint;
};

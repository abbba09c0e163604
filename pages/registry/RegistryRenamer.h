#pragma once

#include <QObject>

class KeyMovePlanJob;
class ListedValue;
class PageContext;
class QWidget;
class RegistryHistory;
class StoreGate;

/// Renames keys and values. The registry service has no call for it, and reading a value and
/// setting it again would alter some: each entry gets its new path as it stands in the store.
class RegistryRenamer : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open over `window`, which owns this object too. `history` makes the changes, and
    /// outlives it.
    RegistryRenamer(PageContext& page, StoreGate& gate, RegistryHistory& history, QWidget* window);

    void renameKey(const QString& path);
    /// `path` is the key that shows the value.
    void renameValue(const QString& path, const ListedValue& value);

private:
    bool isKeyFixed(const QString& path);
    bool isValueFixed(const ListedValue& value);
    void moveKey(const QString& path, const QString& name);
    void makeMove(const QString& from, const QString& to, KeyMovePlanJob& plan);
    void moveValue(const QString& path, const QString& name, const QString& newName);
    void reportSame(const QString& name);

    PageContext& m_page;
    StoreGate& m_gate;
    RegistryHistory& m_history;
    QWidget* m_window;
};

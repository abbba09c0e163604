#pragma once

#include "inspection/registry/ValueRemovalJob.h"

#include <QObject>

#include <functional>
#include <vector>

class ListedValue;
class PageContext;
class QWidget;
class RegistryCountJob;
class RegistryHistory;
class StoreGate;
class KeysAlongJob;

/// Deletes keys and values: asks first, saying what goes along, then deletes through the service.
class RegistryRemover : public QObject
{
    Q_OBJECT

public:
    /// Questions open over `window`, which owns this object too. `history` gets what is deleted,
    /// and outlives it.
    RegistryRemover(PageContext& page, StoreGate& gate, RegistryHistory& history, QWidget* window);

    /// Asks once for all. Does not read the values.
    void removeValues(const QString& path, const std::vector<ListedValue>& values);
    /// Counts what goes with the key before it asks.
    void removeKey(const QString& path);

signals:
    /// The store has changed; this key is to be looked at.
    void changed(const QString& path);

private:
    using Values = std::vector<ValueRemovalJob::Value>;

    /// Gets the file of the backup that has been made first; empty where there is none.
    using Confirmed = std::function<void(const QString& backup)>;

    void ask(const QString& question, const QString& detail, const Confirmed& confirmed);
    void confirmValues(const QString& path, const KeysAlongJob& job);
    void removeAll(const QString& path, const Values& values, const QString& backup);
    void confirmKey(const QString& path, const RegistryCountJob& count);
    void removeKeys(const QString& path, const QStringList& keys, const QString& backup);

    PageContext& m_page;
    StoreGate& m_gate;
    RegistryHistory& m_history;
    QWidget* m_window;
};

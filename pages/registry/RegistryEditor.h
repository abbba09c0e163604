#pragma once

#include "pages/registry/RegistryValueModel.h"

#include <QObject>

#include <functional>
#include <vector>

class Page;

/// The changes that the registry page offers: each asks what it needs, writes through the service,
/// and tells what came of it.
class RegistryEditor : public QObject
{
    Q_OBJECT

public:
    explicit RegistryEditor(Page* page);

    void newKey(const QString& parentPath);
    void newValue(const QString& path, unsigned int type);
    void editValue(const QString& path, const RegistryValueModel::Value& value);
    /// Asks once for all, naming them. Nothing but name and place of the values is used.
    void removeValues(const QString& path, const std::vector<RegistryValueModel::Value>& values);
    /// Counts what goes with the key before it asks.
    void removeKey(const QString& path);

signals:
    /// The store has changed; this key, and this value of it unless empty, is to be looked at.
    void changed(const QString& path, const QString& name);

private:
    using Values = std::vector<RegistryValueModel::Value>;

    bool isRefused(const QString& path);
    bool isRefused(const QString& path, const RegistryValueModel::Value& value);
    void reportRefusal(const QString& why);
    void ask(const QString& question, const QString& detail,
             const std::function<void()>& confirmed);
    void createKey(const QString& parentPath, const QString& name);
    void reportPresent(const QString& path);
    void openEditor(const QString& path, const RegistryValueModel::Value& value);
    void write(const QString& path, const QString& name, unsigned int type, const QByteArray& data);
    void compare(const QString& path, const QString& name, unsigned int type,
                 const QByteArray& written);
    void removeAll(const QString& path, const Values& values);
    void confirmKey(const QString& path, const QStringList& keys, int values);
    void removeKeys(const QString& path, const QStringList& keys);

    Page* m_page;
};

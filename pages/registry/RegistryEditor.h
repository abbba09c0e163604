#pragma once

#include <QObject>

#include <functional>

class ListedValue;
class PageContext;
class QDialog;
class QWidget;
class RegistryHistory;
class StoreGate;
class ValueDialog;

/// Creates keys and sets values: asks for what is needed, writes it through the service, and
/// reports what came of it.
class RegistryEditor : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open over `window`, which owns this object too. `history` gets what is changed, and
    /// outlives it.
    RegistryEditor(PageContext& page, StoreGate& gate, RegistryHistory& history, QWidget* window);

    void newKey(const QString& parentPath);
    void newValue(const QString& path, unsigned int type);
    void editValue(const QString& path, const ListedValue& value);

signals:
    /// The store has changed; this key, and this value of it unless empty, is to be looked at.
    void changed(const QString& path, const QString& name);

private:
    void createKey(const QString& parentPath, const QString& name);
    bool create(const QString& parentPath, const QString& name);
    void reportPresent(const QString& path);
    void createValue(const QString& path, const ValueDialog& dialog);
    QString whyNotEdited(const ListedValue& value) const;
    void openEditor(const QString& path, const ListedValue& value);
    void endEditing(const QString& path, const ValueDialog& dialog);
    void write(const QString& path, const ValueDialog& dialog);
    bool set(const QString& path, const ValueDialog& dialog);
    void reportWritten(const QString& path, const ValueDialog& dialog);

    PageContext& m_page;
    StoreGate& m_gate;
    RegistryHistory& m_history;
    QWidget* m_window;
};

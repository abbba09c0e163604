#pragma once

#include <QWidget>

class PageContext;
class QHBoxLayout;
class QLineEdit;
class RegistryTreeModel;

/// The line with the path of the key in view, in which another one can be typed.
class AddressBar : public QWidget
{
    Q_OBJECT

public:
    /// Looks among `keys`, which outlive it, for what is typed.
    AddressBar(PageContext& page, RegistryTreeModel& keys, QWidget* parent = nullptr);

    /// Shows the path of a key of the store as people write it.
    void setPath(const QString& path);
    /// Adds a button behind the line.
    void addButton(QWidget* button);

signals:
    /// The typed key is to be shown.
    void entered(const QString& path);
    /// There is no such key: the nearest one above it is to be shown.
    void missed(const QString& path);

private:
    void open();
    void openNearest(const QString& path);

    PageContext& m_page;
    RegistryTreeModel& m_keys;
    QHBoxLayout* m_layout;
    QLineEdit* m_line;
};

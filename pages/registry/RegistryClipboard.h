#pragma once

#include <QObject>

#include <memory>
#include <vector>

class ListedValue;
class PageContext;
class RegistryTextJob;

/// Copies paths, data, and texts of registry files to the clipboard.
class RegistryClipboard : public QObject
{
    Q_OBJECT

public:
    explicit RegistryClipboard(PageContext& page, QObject* parent = nullptr);

    void copyPath(const QString& path);
    /// The data of one value; of several values a line each, with name, type and data between tabs.
    void copyData(const std::vector<ListedValue>& values);
    /// The key with everything below it, as an export writes it.
    void copyKey(const QString& path);
    /// These values, as an export writes them.
    void copyValues(const std::vector<ListedValue>& values);

private:
    void copy(std::unique_ptr<RegistryTextJob> job);
    void report(const RegistryTextJob& job);

    PageContext& m_page;
};

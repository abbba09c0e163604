#pragma once

#include "regfile/RegFileWriter.h"

#include <QObject>

#include <memory>

class ImportPlan;
class Page;

/// Export and import of registry files from the registry page.
class RegistryTransfer : public QObject
{
    Q_OBJECT

public:
    explicit RegistryTransfer(Page* page);

    /// Asks for a file, then writes the key with everything below it.
    void askExport(const QString& path);
    void exportKey(const QString& path, const QString& file, RegFileWriter::Encoding encoding);

    /// Asks for a file, then shows what importing it would do.
    void askImport();
    void importFile(const QString& file);

signals:
    /// The store has changed.
    void changed();

private:
    void preview(const QString& file, const std::shared_ptr<const ImportPlan>& plan);
    void apply(const QString& file, const std::shared_ptr<const ImportPlan>& plan);

    Page* m_page;
};

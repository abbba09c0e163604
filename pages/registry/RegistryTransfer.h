#pragma once

#include "regfile/RegFileWriter.h"

#include <QObject>

#include <functional>
#include <memory>

class ImportPlan;
class PageContext;
class QFileDialog;
class QWidget;
class RegistryApplyJob;
class RegistryExportJob;
class RegistryHistory;
class RegistryImportJob;
class StoreGate;

/// Export and import of registry files from the registry page.
class RegistryTransfer : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open over `window`, which owns this object too. `history` gets what is imported, and
    /// outlives it.
    RegistryTransfer(PageContext& page, StoreGate& gate, RegistryHistory& history, QWidget* window);

    /// Asks for a file, then writes the key with everything below it. `exported` is called when
    /// that has succeeded.
    void askExport(const QString& path, const std::function<void()>& exported = {});
    void exportKey(const QString& path, const QString& file, RegFileWriter::Encoding encoding,
                   const std::function<void()>& exported = {});

    /// Asks for a file, then shows what importing it would do.
    void askImport();
    /// `codePage` is that of a file of version 4, the system's where it is empty.
    void importFile(const QString& file, const QByteArray& codePage = {});

signals:
    /// The store has changed.
    void changed();

private:
    QFileDialog* fileDialog(const QString& title) const;
    bool reportExport(RegistryExportJob& job, const QString& file, bool complete);
    void endReading(const RegistryImportJob& job, const QString& file, bool complete);
    void preview(const QString& file, const RegistryImportJob& job);
    void apply(const QString& file, const std::shared_ptr<const ImportPlan>& plan,
               const QString& backup);
    void reportImport(const QString& file, int applied, int refused, bool complete);
    void refuse(const QString& file, const QString& why);

    PageContext& m_page;
    StoreGate& m_gate;
    RegistryHistory& m_history;
    QWidget* m_window;
};

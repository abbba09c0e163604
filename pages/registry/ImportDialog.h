#pragma once

#include <QDialog>

class RegistryImport;

/// Shows, before anything is written, what an import will do and what it will refuse.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `import` outlives the dialog.
    ImportDialog(const QString& file, const RegistryImport& import, QWidget* parent);
};

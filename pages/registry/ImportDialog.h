#pragma once

#include <QDialog>

class ImportPlan;

/// Shows, before anything is written, what an import will do and what it will refuse.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `plan` outlives the dialog.
    ImportDialog(const QString& file, const ImportPlan& plan, QWidget* parent);
};

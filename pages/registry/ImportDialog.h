#pragma once

#include "inspection/registry/ImportPlan.h"
#include "window/RecordsModel.h"

#include <QDialog>

#include <memory>

/// Shows, before anything is written, what an import will do and what it will refuse.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `file` is the name that is shown. The plan no longer changes.
    ImportDialog(const QString& file, std::shared_ptr<const ImportPlan> plan, QWidget* parent);

private:
    void showStatements(bool onlyRemarkable);
    QWidget* makeTable();
    QWidget* makeButtons();

    std::shared_ptr<const ImportPlan> m_plan;
    RecordsModel<const ImportPlan::Statement*>* m_statements;
};

#pragma once

#include "inspection/registry/ImportPlan.h"
#include "window/RecordsModel.h"

#include <QDialog>

#include <memory>
#include <optional>

class BackupBox;
class QLayout;

/// Shows, before anything is written, what an import will do and what it will refuse.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// How the text of a file of version 4 has been read.
    struct Decoding
    {
        QByteArray codePage; ///< as QTextCodec knows it
        bool fits = true;    ///< false where some of the bytes are none of that code page
    };

    /// `file` is the name that is shown. The plan no longer changes. `decoding` is none for a file
    /// of version 5, which needs no code page.
    ImportDialog(const QString& file, std::shared_ptr<const ImportPlan> plan, QWidget* parent,
                 const std::optional<Decoding>& decoding = {});

    /// True where the user wants a backup before the import.
    bool isBackupWanted() const;

signals:
    /// The file is to be read anew in another code page. The dialog closes.
    void codePageChosen(const QByteArray& codePage);

private:
    QLayout* makeCodePages(const Decoding& decoding);
    void chooseCodePage(const QByteArray& codePage);
    void showStatements(bool onlyRemarkable);
    QWidget* makeTable();
    QWidget* makeButtons(bool isReadable);

    std::shared_ptr<const ImportPlan> m_plan;
    RecordsModel<const ImportPlan::Statement*>* m_statements;
    BackupBox* m_backup;
};

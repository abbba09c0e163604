#pragma once

#include "inspection/fonts/FontCatalogue.h"
#include "window/Page.h"
#include "window/RecordsModel.h"

#include <memory>

class AnswerField;
class EmptyHint;
class FontPreview;
class FontRegistrationJob;
class QComboBox;
class QLayout;
class QLineEdit;
class QTableView;

/// The font records that have been registered with the font service, and its mapping of names.
class FontsPage : public Page
{
    Q_OBJECT

public:
    explicit FontsPage(QWidget* parent = nullptr);

    /// Asks the service again.
    void refresh() override;
    void find() override;
    void entered() override;

protected:
    void lookForChanges() override;

private:
    QLayout* makeFilterRow();
    QLayout* makeButtonRow();
    QTableView* makeTable();
    QWidget* makeMapping();
    void showRecords();
    void showGlobalName();
    void registerSystemFonts();
    void finish(const FontRegistrationJob& job, bool complete);

    QLineEdit* m_family;
    QComboBox* m_charSet;
    std::shared_ptr<FontPreview> m_preview; ///< shared with the columns
    RecordsModel<RegisteredFont>* m_records;
    QTableView* m_table;
    EmptyHint* m_hint;
    QLineEdit* m_localName;
    AnswerField* m_globalName;
    int m_count = 0; ///< of all records, when they were read
    bool m_isRestoring = false;
};

#pragma once

#include "window/Page.h"

#include <memory>

class AnswerField;
class EmptyHint;
class FontRecordsModel;
class QComboBox;
class QLayout;
class QLineEdit;
class QTableView;
class SystemFonts;

/// The font records that have been registered with the font service, and its mapping of names.
class FontsPage : public Page
{
    Q_OBJECT

public:
    explicit FontsPage(QWidget* parent = nullptr);
    ~FontsPage() override;

    /// Asks the service again.
    void refresh() override;
    void find() override;
    void entered() override;

private:
    QLayout* makeFilterRow();
    QLayout* makeButtonRow();
    QTableView* makeTable();
    QWidget* makeMapping();
    void showRecords();
    void showGlobalName();
    void registerSystemFonts();
    void finish(bool complete);

    QLineEdit* m_family;
    QComboBox* m_charSet;
    FontRecordsModel* m_model;
    QTableView* m_table;
    EmptyHint* m_hint;
    QLineEdit* m_localName;
    AnswerField* m_globalName;
    std::unique_ptr<SystemFonts> m_systemFonts;
};

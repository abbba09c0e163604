#pragma once

#include "pages/displays/HandleModel.h"
#include "window/Page.h"

#include <memory>

class QHBoxLayout;
class QLineEdit;
class QSpinBox;
class QTableView;

/// The live graphics handles, which can be made and deleted here.
class HandlePanel : public QWidget
{
    Q_OBJECT

public:
    explicit HandlePanel(QWidget* parent = nullptr);

    /// Asks for a scan.
    void refresh();
    /// Shows what a scan has found, as far as it came.
    void showResult(const HandleScan& scan, bool complete);

signals:
    void reported(Page::Report kind, const QString& text);
    /// The work to be done, in slices; afterwards `showResult` is to be called.
    void scanRequested(const std::shared_ptr<HandleScan>& scan);

private:
    void makeTable();
    QWidget* makeTools();
    QSpinBox* addSize(QHBoxLayout* row, const QString& caption);
    void addButton(QHBoxLayout* row, const QString& caption, void (HandlePanel::*slot)());
    void createImage();
    void createBrush();
    void remove();
    bool confirmDeletion(const QString& name);
    void showNew(void* handle);

    HandleModel* m_model;
    QTableView* m_view;
    QSpinBox* m_width = nullptr;
    QSpinBox* m_height = nullptr;
    QLineEdit* m_color = nullptr;
    int m_selected = 0;
};

#pragma once

#include "inspection/displays/GraphicsHandles.h"
#include "window/PageContext.h"
#include "window/RecordsModel.h"

#include <QWidget>

class QHBoxLayout;
class QLineEdit;
class QSpinBox;
class QTableView;

/// The live graphics handles, which can be made and deleted here.
class HandlePanel : public QWidget
{
    Q_OBJECT

public:
    explicit HandlePanel(PageContext& page, QWidget* parent = nullptr);

    /// Lists them anew; the one that is chosen stays so.
    void refresh();
    /// Lists them anew if they have changed, and says whether they have.
    bool lookForChanges();

private:
    void makeTable();
    QLayout* makeTools();
    QSpinBox* addSize(QHBoxLayout* row, const QString& caption);
    void addButton(QHBoxLayout* row, const QString& caption, void (HandlePanel::*slot)());
    void createImage();
    void createBrush();
    void remove();
    bool confirmDeletion(const QString& name);
    void showNew(void* handle);
    void choose(const void* handle);

    PageContext& m_page;
    RecordsModel<GraphicsObject> m_model;
    QTableView* m_view;
    QSpinBox* m_width = nullptr;
    QSpinBox* m_height = nullptr;
    QLineEdit* m_color = nullptr;
};

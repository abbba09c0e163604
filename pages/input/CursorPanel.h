#pragma once

#include "inspection/input/CursorLevels.h"
#include "window/PageContext.h"

#include <QGroupBox>

class AnswerField;
class QComboBox;
class QFormLayout;
class QPushButton;

/// The pointer's position and the override cursor.
class CursorPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit CursorPanel(PageContext& page, QWidget* parent = nullptr);

    /// Asks for all of it.
    void refresh();

private:
    AnswerField* addValue(QFormLayout* form, const QString& caption, const QString& objectName);
    QLayout* makeTools();
    void setCursorShape();
    void takeBack();

    PageContext& m_page;
    AnswerField* m_screen;
    AnswerField* m_window;
    AnswerField* m_cursor;
    QComboBox* m_shapes = nullptr;
    QPushButton* m_takeBack = nullptr;
    CursorLevels m_levels;
};

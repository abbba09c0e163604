#pragma once

#include "window/Page.h"

#include <QGroupBox>

class AnswerField;
class QComboBox;
class QFormLayout;

/// The pointer's position and the override cursor.
class CursorPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit CursorPanel(QWidget* parent = nullptr);
    /// Takes back the levels that were added here.
    ~CursorPanel() override;

    /// Asks for all of it.
    void refresh();

signals:
    void reported(Page::Report kind, const QString& text);

private:
    AnswerField* addValue(QFormLayout* form, const QString& caption, const QString& objectName);
    QWidget* makeTools();
    void addShapes();
    void setCursorShape();
    void popLevels();
    void takeBack();
    void showPosition();

    AnswerField* m_screen;
    AnswerField* m_window;
    AnswerField* m_cursor;
    QComboBox* m_shapes = nullptr;
    QPushButton* m_takeBack = nullptr;
    int m_levels = 0;
};

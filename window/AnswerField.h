#pragma once

#include <QLineEdit>

/// Shows one answer: selectable, reachable by keyboard, and never cut off, since it scrolls.
class AnswerField : public QLineEdit
{
    Q_OBJECT

public:
    /// `name` is the accessible name. Tests find the field by its object name.
    AnswerField(const QString& name, const QString& objectName, QWidget* parent = nullptr);

    /// Shows `text` from its beginning, and as the tool tip. The same text changes nothing.
    void setAnswer(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeColors();
};

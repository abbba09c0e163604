#include "app/pages/AnswerField.h"

AnswerField::AnswerField(const QString& name, const QString& objectName, QWidget* parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setAccessibleName(name);
    setObjectName(objectName);
    // As a label looks: what can be typed into stands out by its own colour.
    QPalette colors = palette();
    colors.setColor(QPalette::Base, colors.color(QPalette::Window));
    colors.setColor(QPalette::Text, colors.color(QPalette::WindowText));
    setPalette(colors);
}

void AnswerField::setAnswer(const QString& text)
{
    setText(text);
    setCursorPosition(0);
    setToolTip(text);
}

#include "window/AnswerField.h"

#include "window/ShownText.h"

#include <QEvent>
#include <QGuiApplication>

AnswerField::AnswerField(const QString& name, const QString& objectName, QWidget* parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setAccessibleName(name);
    setObjectName(objectName);
    takeColors();
}

void AnswerField::setAnswer(const QString& text)
{
    if (text == this->text())
        return; // what was selected stays so where an answer is asked for again and again
    setText(text);
    setCursorPosition(0);
    setToolTip(plainToolTip(text));
}

void AnswerField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

// The field looks like a label: only what can be typed into has a ground of another colour.
void AnswerField::takeColors()
{
    QPalette colors = palette();
    const QPalette application = QGuiApplication::palette();
    colors.setColor(QPalette::Base, application.color(QPalette::Window));
    colors.setColor(QPalette::Text, application.color(QPalette::WindowText));
    if (colors != palette()) // setting them is a change of its own
        setPalette(colors);
}

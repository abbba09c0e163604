#include "window/PlainText.h"

#include <QPlainTextEdit>
#include <QTextDocument>

QString textOf(const QPlainTextEdit& edit)
{
    QString text = edit.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

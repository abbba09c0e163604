#include "window/PlainToolTip.h"

#include <QTextDocument>

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>")
               : text;
}

#pragma once

#include <QTextDocument>

/// What a tool tip shows: markup is taken as such.
inline QString shownToolTip(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

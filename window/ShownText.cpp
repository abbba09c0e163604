#include "window/ShownText.h"

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <QTextDocument>

namespace {

// In characters: so many of the widest fit 640 pixels in a font of 9 points.
constexpr int longestWord = 48;
constexpr int shownOfStart = 30;
constexpr int shownOfEnd = longestWord - shownOfStart - 1;

QString shortened(const QString& word)
{
    if (word.size() <= longestWord)
        return word;
    return word.left(shownOfStart) + QChar(u'\u2026') + word.right(shownOfEnd);
}

} // namespace

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>")
               : text;
}

QString textOf(const QPlainTextEdit& edit)
{
    QString text = edit.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

QString withoutMnemonic(const QString& caption)
{
    static const QRegularExpression bracketed(QStringLiteral("\\s*\\(&.\\)"));
    static const QRegularExpression colon(QStringLiteral("\\s*[:\\x{ff1a}]$"));
    return QString(caption).remove(bracketed).remove(QLatin1Char('&')).remove(colon);
}

QString withoutLongWords(const QString& text)
{
    if (text.size() <= longestWord)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    QString result;
    int start = 0;
    while (finder.toNextBoundary() >= 0) {
        result += shortened(text.mid(start, finder.position() - start));
        start = finder.position();
    }
    return result;
}

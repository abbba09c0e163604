#include "window/LongWords.h"

#include <QTextBoundaryFinder>

namespace {

constexpr int longest = 48; // characters: of the widest, as many as fit 640 pixels at 9 points
constexpr int shownOfStart = 30;
constexpr int shownOfEnd = longest - shownOfStart - 1;

QString shortened(const QString& word)
{
    if (word.size() <= longest)
        return word;
    return word.left(shownOfStart) + QChar(u'\u2026') + word.right(shownOfEnd);
}

} // namespace

QString withoutLongWords(const QString& text)
{
    if (text.size() <= longest)
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

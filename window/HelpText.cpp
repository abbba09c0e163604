#include "window/HelpText.h"

#include "window/ShownText.h"

#include <QKeySequence>

namespace {

QString heading(const QString& text)
{
    return QStringLiteral("<h2>%1</h2>").arg(text.toHtmlEscaped());
}

QString paragraph(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

struct KeyLine
{
    const char* keys;
    const char* meaning;
};

// As QKeySequence reads them; several have a space between them.
constexpr KeyLine keyLines[] = {
    {"F1", QT_TRANSLATE_NOOP("HelpText", "this help, at the part about the page in view")},
    {"F5", QT_TRANSLATE_NOOP("HelpText", "read the page again")},
    {"Ctrl+F", QT_TRANSLATE_NOOP("HelpText", "search in the page")},
    {"F3", QT_TRANSLATE_NOOP("HelpText", "to the next one that was found")},
    {"Shift+F3", QT_TRANSLATE_NOOP("HelpText", "to the one before it, in the registry")},
    {"F8", QT_TRANSLATE_NOOP("HelpText", "to the next difference, in a profile")},
    {"F2", QT_TRANSLATE_NOOP("HelpText", "edit what is selected")},
    {"Ctrl+Return", QT_TRANSLATE_NOOP("HelpText", "confirm a text of several lines")},
    {"Del", QT_TRANSLATE_NOOP("HelpText", "delete what is selected, after a question")},
    {"Backspace Alt+Up",
     QT_TRANSLATE_NOOP("HelpText", "to the folder above, in the list of found files")},
    {"Ctrl+C", QT_TRANSLATE_NOOP("HelpText", "copy what is selected")},
    {"Ctrl+Z Ctrl+Shift+Z", QT_TRANSLATE_NOOP("HelpText", "undo and redo a change of the page")},
    {"Shift+F10 Menu", QT_TRANSLATE_NOOP("HelpText", "the menu of what is selected")},
    {"Esc", QT_TRANSLATE_NOOP("HelpText", "cancel the work that covers a page, or close a dialog")},
    {"Ctrl+Q", QT_TRANSLATE_NOOP("HelpText", "close the program")},
};

QString keyRow(const QString& keys, const QString& meaning)
{
    QStringList native;
    const QStringList all = keys.split(QLatin1Char(' '));
    for (const QString& key : all)
        native << QKeySequence(key).toString(QKeySequence::NativeText).toHtmlEscaped();
    return QStringLiteral("<tr><td><b>%1</b></td><td>&nbsp;&nbsp;%2</td></tr>")
        .arg(native.join(QStringLiteral(", ")), meaning.toHtmlEscaped());
}

} // namespace

QString HelpText::whole(const std::vector<PageEntry>& pages)
{
    return ofPages(pages) + ofFamilies() + ofKeys(static_cast<int>(pages.size()));
}

QString HelpText::ofPages(const std::vector<PageEntry>& pages)
{
    QString text = heading(tr("What each page answers")) +
                   paragraph(tr("Host libraries that were written for Windows run in this program "
                                "and call its services. Every page asks the same services, and "
                                "shows what a host library gets from them."));
    for (const PageEntry& page : pages)
        text += QStringLiteral("<h3><a name=\"%1\">%2</a></h3>")
                    .arg(page.name, withoutMnemonic(page.title).toHtmlEscaped()) +
                paragraph(page.answers);
    return text;
}

QString HelpText::ofFamilies()
{
    const QString wide = tr("The wide calls end in W and take names as 4-byte characters: "
                            "GetPrivateProfileStringW, GetPrivateProfileIntW, "
                            "GetPrivateProfileSectionW and WritePrivateProfileStringW. They read a "
                            "profile as a settings file, with escapes, quotes and comments, and "
                            "write it anew in that form.");
    const QString narrow = tr("The narrow calls end in A and take names as bytes in UTF-8: "
                              "GetPrivateProfileStringA and WritePrivateProfileStringA. They read "
                              "a profile line by line, drop every line without exactly one equals "
                              "sign, and write what is left, sorted.");
    const QString fixed = tr("GetPrivateProfileIntA and GetPrivateProfileSectionNamesW always "
                             "answer 0. A program that was built for Unicode makes the wide calls, "
                             "an older one the narrow ones: one program may make both, and see two "
                             "different values.");
    return heading(tr("Wide and narrow calls")) + paragraph(wide) + paragraph(narrow) +
           paragraph(fixed);
}

QString HelpText::ofKeys(int pages)
{
    QString rows = keyRow(QStringLiteral("Alt+1 Alt+%1").arg(pages),
                          tr("from the first page to the last; the letters that are underlined in "
                             "the rail choose them too"));
    for (const KeyLine& line : keyLines)
        rows += keyRow(QString::fromLatin1(line.keys), tr(line.meaning));
    return heading(tr("Keys")) + QStringLiteral("<table>%1</table>").arg(rows);
}

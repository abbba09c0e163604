#pragma once

#include "window/PageCatalogue.h"

#include <QCoreApplication>

/// The text of the help window, in the language of the interface and as HTML.
class HelpText
{
    Q_DECLARE_TR_FUNCTIONS(HelpText)

public:
    /// All of it. The part about a page has an anchor of the page's name.
    static QString whole(const std::vector<PageEntry>& pages);

private:
    static QString ofPages(const std::vector<PageEntry>& pages);
    static QString ofFamilies();
    static QString ofKeys(int pages);
};

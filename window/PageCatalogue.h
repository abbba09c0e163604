#pragma once

#include "window/GlyphCanvas.h"

#include <QString>

#include <vector>

class Page;
class QWidget;

/// One page of the window. The order of the catalogue is the order in the rail and in the stack.
struct PageEntry
{
    /// The value of the option "/page".
    QString name;
    /// Translated. The letter that chooses the page together with Alt is its mnemonic.
    QString title;
    GlyphDrawing glyph;
    /// Makes the page; `parent` owns it.
    Page* (*create)(QWidget* parent);
    /// Translated: what the page answers, for the help.
    QString answers{};
};

/// All pages. Declared here for the window and defined above it, beside the pages.
std::vector<PageEntry> pageCatalogue();

/// The name of the page that opens files of the kind of this one; empty where there is none.
QString pageForFile(const QString& path);

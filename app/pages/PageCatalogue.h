#pragma once

#include "app/frame/GlyphIcon.h"

#include <QString>

#include <vector>

class Page;
class QWidget;

/// One page of the window. The order of the catalogue is the order in the rail and in the stack.
struct PageEntry
{
    /// The value of the option "/page".
    QString name;
    /// Translated, with its mnemonic.
    QString title;
    Glyph glyph;
    /// Makes the page; `parent` owns it.
    Page* (*create)(QWidget* parent);
};

std::vector<PageEntry> pageCatalogue();

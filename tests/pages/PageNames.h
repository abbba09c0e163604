#pragma once

#include "window/PageCatalogue.h"

#include <string>
#include <vector>

/// The names of all pages, as the parameters of a test that is run for each.
inline std::vector<std::string> pageNames()
{
    std::vector<std::string> names;
    for (const PageEntry& page : pageCatalogue())
        names.push_back(page.name.toStdString());
    return names;
}

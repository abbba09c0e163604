#pragma once

#include "tests/pages/PageNames.h"
#include "tests/pages/WindowProbe.h"

#include <gtest/gtest.h>

#include <string>

/// A page of the window in one of its languages.
struct PageInLanguage
{
    std::string page;
    WindowProbe::Language language;
};

/// The parameters of a test that is run for every page in every language.
inline std::vector<PageInLanguage> pagesInLanguages()
{
    std::vector<PageInLanguage> all;
    for (const std::string& page : pageNames()) {
        all.push_back({page, WindowProbe::Language::English});
        all.push_back({page, WindowProbe::Language::Chinese});
    }
    return all;
}

/// A name for tests.
inline std::string nameOf(const PageInLanguage& shown)
{
    return shown.page + (shown.language == WindowProbe::Language::English ? "English" : "Chinese");
}

inline void PrintTo(const PageInLanguage& shown, std::ostream* out)
{
    *out << nameOf(shown);
}

/// A test that is run for every page in every language.
using TestOfPageInLanguage = testing::TestWithParam<PageInLanguage>;

inline std::string nameOfPageInLanguage(const testing::TestParamInfo<PageInLanguage>& row)
{
    return nameOf(row.param);
}

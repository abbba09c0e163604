// The font catalogue against plain walks over the same records.

#include "bench/Ratio.h"
#include "platform/PlatformFontManagerImp.h"

#include <cwchar>
#include <string>
#include <vector>

namespace {

struct Catalogue
{
    PlatformFontManagerImp manager;
    std::vector<ENUMLOGFONTEXW> records;
};

/// `records` records in `families` families.
Catalogue catalogueOf(int records, int families)
{
    Catalogue catalogue;
    for (int i = 0; i < records; ++i) {
        ENUMLOGFONTEXW record{};
        const std::wstring name = L"Family " + std::to_wstring(i % families);
        name.copy(record.elfLogFont.lfFaceName, LF_FACESIZE);
        catalogue.manager.addLogFont((L"Global " + name).c_str(), &record);
        catalogue.records.push_back(record);
    }
    return catalogue;
}

int count(const tagLOGFONTW* font, const tagTEXTMETRICW* /*metric*/, unsigned int /*type*/,
          long counter)
{
    *reinterpret_cast<long*>(counter) += font->lfFaceName[0] == L'F' ? 1 : 0;
    return 0;
}

void walk(Catalogue& catalogue, const wchar_t* name, long& counter)
{
    for (const ENUMLOGFONTEXW& record : catalogue.records) {
        if (!name || std::wcscmp(record.elfLogFont.lfFaceName, name) == 0)
            count(&record.elfLogFont, nullptr, TRUETYPE_FONTTYPE, reinterpret_cast<long>(&counter));
    }
}

void enumerateAll(benchmark::State& state)
{
    Catalogue catalogue =
        catalogueOf(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    long ours = 0;
    long peer = 0;
    compare(
        state,
        [&] {
            catalogue.manager.enumFontFamiliesEx(nullptr, nullptr, count,
                                                 reinterpret_cast<long>(&ours), 0);
        },
        [&] { walk(catalogue, nullptr, peer); });
    if (ours != peer || ours == 0)
        state.SkipWithError("the walks differ");
}

void enumerateOneFamily(benchmark::State& state)
{
    const auto families = static_cast<int>(state.range(0));
    Catalogue catalogue = catalogueOf(families, families);
    tagLOGFONTW filter{};
    const std::wstring name = L"Family " + std::to_wstring(families / 2);
    name.copy(filter.lfFaceName, LF_FACESIZE);
    filter.lfCharSet = DEFAULT_CHARSET;
    long ours = 0;
    long peer = 0;
    compare(
        state,
        [&] {
            catalogue.manager.enumFontFamiliesEx(nullptr, &filter, count,
                                                 reinterpret_cast<long>(&ours), 0);
        },
        [&] { walk(catalogue, name.c_str(), peer); });
    if (ours != peer || ours == 0)
        state.SkipWithError("the walks differ");
}

BENCHMARK(enumerateAll)
    ->ArgNames({"records", "families"})
    ->Args({10000, 1})
    ->Args({10000, 100})
    ->Args({10000, 10000})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK(enumerateOneFamily)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace

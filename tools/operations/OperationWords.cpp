#include "tools/operations/OperationWords.h"

namespace operationwords {

namespace {

// A phrase in both languages.
struct Phrase
{
    const char* english = "";
    const char* chinese = "";

    constexpr const char* in(Language language) const
    {
        return language == Language::English ? english : chinese;
    }
};

Phrase failurePhrase(trace::Failure failure)
{
    switch (failure) {
    case trace::Failure::Never: return {};
    case trace::Failure::Zero: return {"0", "0"};
    case trace::Failure::NonZero: return {"not 0", "非 0"};
    case trace::Failure::MinusOne: return {"all bits set", "各位全为 1"};
    }
    return {};
}

Phrase extentPhrase(trace::Extent extent)
{
    switch (extent) {
    case trace::Extent::None:
    case trace::Extent::Whole: return {};
    case trace::Extent::FindFirst:
        return {"name and attributes; the rest for a regular file",
                "名称和属性；普通文件还有其余字段"};
    case trace::Extent::FindNext: return {"name and attributes", "名称和属性"};
    case trace::Extent::Script: return {"the script's name", "文字的名称"};
    case trace::Extent::Result:
        return {"as many as the result says, no terminator", "数目为结果，无终止符"};
    case trace::Extent::ResultCut: return {"terminated only where it fits", "放得下时才有终止符"};
    case trace::Extent::ResultFull:
        return {"no terminator where it is full; the address for size 0",
                "写满时无终止符；大小为 0 时写地址"};
    case trace::Extent::Size:
        return {"as many as its size then says, no terminator", "数目为随后的大小，无终止符"};
    case trace::Extent::Path:
        return {"256 characters, or the whole without a terminator",
                "256 个字符，或无终止符的全文"};
    case trace::Extent::Asked: return {"no terminator, no limit", "无终止符，无上限"};
    }
    return {};
}

Phrase writtenPhrase(trace::Written written)
{
    switch (written) {
    case trace::Written::OnSuccess: return {};
    case trace::Written::WhenOpened: return {"null where the key is not found", "找不到键时为空"};
    case trace::Written::WhenListed:
        return {"also where the value cannot be read", "值不可读时也写"};
    case trace::Written::Given: return {"also on failure", "失败时也写"};
    }
    return {};
}

const char* joint(Language language)
{
    return language == Language::English ? "; " : "；";
}

std::string joined(const std::string& first, const std::string& second, Language language)
{
    return first.empty() || second.empty() ? first + second : first + joint(language) + second;
}

std::string quoted(const char* name)
{
    return std::string("`") + name + "`";
}

} // namespace

std::string failure(trace::Failure failure, Language language)
{
    return failurePhrase(failure).in(language);
}

std::string extent(const trace::Parameter& parameter, Language language)
{
    return joined(extentPhrase(parameter.extent).in(language),
                  writtenPhrase(parameter.written).in(language), language);
}

std::string ownership(const trace::Operation& operation, Language language)
{
    static constexpr Phrase result{"the caller owns the result", "结果归调用者所有"};
    static constexpr Phrase begins{"the caller owns ", "归调用者所有："};
    static constexpr Phrase ends{"gives back ", "交还"};
    std::string text;
    if (operation.result.life == trace::Life::Begins)
        text = result.in(language);
    for (const trace::Parameter& parameter : operation.parameters) {
        if (parameter.life == trace::Life::None)
            continue;
        const Phrase& phrase = parameter.life == trace::Life::Begins ? begins : ends;
        text = joined(text, phrase.in(language) + quoted(parameter.name), language);
    }
    return text;
}

const Titles& titles(Language language)
{
    static constexpr Titles english{
        "Operations",
        "Every operation of every interface, in the order of the virtual tables; made from the "
        "table "
        "of operations by `./dev docs`. The name leads to what the operation answers. A failure "
        "leaves "
        "every result alone where nothing else is said, and what is not listed as written never "
        "is.",
        "| slot | operation | fails with | writes | never writes | ownership | differs from "
        "Windows |",
        "Fixed results", "These operations have one result for all arguments and write nothing:"};
    static constexpr Titles chinese{
        "操作",
        "各接口的全部操作，按虚函数表的顺序；由 `./dev docs` "
        "根据操作表生成。名称链接到该操作的回答（英文）。除另有说明外，失败时不改动任何结果；未列为"
        "写出的内容绝不写出。",
        "| 槽位 | 操作 | 失败时 | 写出 | 绝不写出 | 所有权 | 与 Windows 的不同 |", "固定结果",
        "以下操作对任何参数都给出同一结果，且不写出任何内容："};
    return language == Language::English ? english : chinese;
}

} // namespace operationwords

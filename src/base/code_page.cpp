// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "base/encoding.h"
#include "base/numbers.h"
#include "base/text.h"

namespace campora {

namespace {

// clang-format off
constexpr UpperHalf kDos437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr UpperHalf kDos850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
constexpr UpperHalf kDos860 =
    u"ÇüéâãàÁçêÊèÍÔìÃÂÉÀÈôõòÚùÌÕÜ¢£Ù₧Ó"
    u"áíóúñÑªº¿Ò¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
// clang-format on
static_assert(kDos437.size() == 128 && kDos850.size() == 128 && kDos860.size() == 128);

std::string digitsOf(std::string_view text) {
    std::string digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

}  // namespace

std::optional<CodePage> codePageOfName(std::string_view name) {
    const std::string lower = lowerCase(name);
    const std::string digits = digitsOf(lower);
    if (lower.find("ldid") != std::string::npos) {  // the language byte, written out
        const std::int32_t language = roundToInt32(leadingNumber(digits).value_or(0));
        return codePageOfLanguage(static_cast<std::uint8_t>(std::clamp(language, 0, 255)));
    }
    struct Row {
        std::string_view digits;
        CodePage page;
    };
    constexpr std::array kPages = {
        Row{"65001", CodePage::Utf8},        Row{"1252", CodePage::Windows1252},
        Row{"88591", CodePage::Windows1252}, Row{"437", CodePage::Dos437},
        Row{"850", CodePage::Dos850},        Row{"860", CodePage::Dos860},
    };
    if (lower.find("utf") != std::string::npos) {
        return digits == "8" ? std::optional(CodePage::Utf8) : std::nullopt;
    }
    const auto* const row = std::find_if(kPages.begin(), kPages.end(),
                                         [&](const Row& page) { return page.digits == digits; });
    return row == kPages.end() ? std::nullopt : std::optional(row->page);
}

CodePage codePageOfLanguage(std::uint8_t language) {
    constexpr std::array<std::uint8_t, 10> k437 = {0x01, 0x09, 0x0B, 0x0D, 0x0F,
                                                   0x11, 0x15, 0x18, 0x19, 0x1B};
    constexpr std::array<std::uint8_t, 11> k850 = {0x02, 0x0A, 0x0E, 0x10, 0x12, 0x14,
                                                   0x16, 0x1A, 0x1D, 0x25, 0x37};
    constexpr std::uint8_t k860 = 0x24;
    if (std::find(k437.begin(), k437.end(), language) != k437.end()) {
        return CodePage::Dos437;
    }
    if (std::find(k850.begin(), k850.end(), language) != k850.end()) {
        return CodePage::Dos850;
    }
    return language == k860 ? CodePage::Dos860 : CodePage::Windows1252;
}

std::string decodeCodePage(std::string_view bytes, CodePage page) {
    switch (page) {
    case CodePage::Utf8:
        return decodeText(bytes, true);
    case CodePage::Dos437:
        return fromCodePage(bytes, kDos437);
    case CodePage::Dos850:
        return fromCodePage(bytes, kDos850);
    case CodePage::Dos860:
        return fromCodePage(bytes, kDos860);
    case CodePage::Windows1252:
        break;
    }
    return fromWindows1252(bytes);
}

}  // namespace campora

// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_setup.h"

#include <algorithm>
#include <iterator>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr TextId kOwnName{};
constexpr Paper kPapers[] = {
    {"A3", kOwnName, 297, 420},
    {"A4", kOwnName, 210, 297},
    {"A5", kOwnName, 148, 210},
    {"Letter", TextId::PaperLetter, 215.9, 279.4},
    {"Legal", TextId::PaperLegal, 215.9, 355.6},
    {"Tabloid", TextId::PaperTabloid, 279.4, 431.8},
};
constexpr std::size_t kFirstPaper = 1;

std::string millimetres(double length) {
    return numberText(roundToInt32(length));
}

}  // namespace

std::span<const Paper> papers() {
    return kPapers;
}

const Paper& paperOf(std::string_view key) {
    const auto* const found = std::find_if(std::begin(kPapers), std::end(kPapers),
                                           [key](const Paper& paper) { return paper.key == key; });
    return found == std::end(kPapers) ? kPapers[kFirstPaper] : *found;
}

std::string paperText(const Paper& paper, const Texts& texts) {
    std::string text(paper.name == kOwnName ? paper.key : texts(paper.name));
    return text + " (" + millimetres(paper.widthMm) + " × " + millimetres(paper.heightMm) + " mm)";
}

PageRect PageSetup::sheet() const {
    return landscape ? PageRect{0, 0, paper.heightMm, paper.widthMm}
                     : PageRect{0, 0, paper.widthMm, paper.heightMm};
}

PageRect PageSetup::inside() const {
    const PageRect whole = sheet();
    return {static_cast<double>(margins.left), static_cast<double>(margins.top),
            whole.width - margins.left - margins.right,
            whole.height - margins.top - margins.bottom};
}

}  // namespace campora

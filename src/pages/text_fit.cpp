// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/text_fit.h"

#include <cstddef>

#include "base/encoding.h"
#include "base/text.h"

namespace campora {

namespace {

constexpr std::string_view kEllipsis = "…";

/// The places where a UTF-8 text may be cut, its end included.
std::vector<std::size_t> cutsOf(std::string_view text) {
    std::vector<std::size_t> cuts;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!continuesCharacter(text[i])) {
            cuts.push_back(i);
        }
    }
    cuts.push_back(text.size());
    return cuts;
}

/// The longest beginning of the text that fits, at least one character.
std::string_view fittingHead(std::string_view text, PageFont font, double widthMm,
                             const TextWidth& textWidth) {
    const std::vector<std::size_t> cuts = cutsOf(text);
    std::size_t best = 1;
    std::size_t end = cuts.size();
    while (best + 1 < end) {  // a beginning of `best` characters fits, one of `end` does not
        const std::size_t middle = (best + end) / 2;
        if (textWidth(text.substr(0, cuts[middle]), font) <= widthMm) {
            best = middle;
        } else {
            end = middle;
        }
    }
    return text.substr(0, cuts[best]);
}

/// Adds the lines of one line of the text.
void wrapLine(std::string_view line, PageFont font, double widthMm, const TextWidth& textWidth,
              std::vector<std::string>& lines) {
    std::string current;
    for (std::string_view word : split(line, ' ')) {
        const std::string joined =
            current.empty() ? std::string(word) : current + " " + std::string(word);
        if (textWidth(joined, font) <= widthMm) {
            current = joined;
            continue;
        }
        if (!current.empty()) {
            lines.push_back(current);
        }
        while (textWidth(word, font) > widthMm && cutsOf(word).size() > 2) {
            const std::string_view head = fittingHead(word, font, widthMm, textWidth);
            lines.emplace_back(head);
            word.remove_prefix(head.size());
        }
        current = word;
    }
    lines.push_back(current);
}

}  // namespace

std::string elidedEnd(std::string_view text, PageFont font, double widthMm,
                      const TextWidth& textWidth) {
    if (textWidth(text, font) <= widthMm) {
        return std::string(text);
    }
    const std::vector<std::size_t> cuts = cutsOf(text);
    for (std::size_t kept = cuts.size() - 1; kept > 0; --kept) {
        std::string shown = std::string(trim(text.substr(0, cuts[kept - 1]))).append(kEllipsis);
        if (textWidth(shown, font) <= widthMm) {
            return shown;
        }
    }
    return {};
}

std::string elidedStart(std::string_view text, PageFont font, double widthMm,
                        const TextWidth& textWidth) {
    if (textWidth(text, font) <= widthMm) {
        return std::string(text);
    }
    for (const std::size_t cut : cutsOf(text)) {
        std::string shown = std::string(kEllipsis).append(text.substr(cut));
        if (textWidth(shown, font) <= widthMm) {
            return shown;
        }
    }
    return {};
}

std::vector<std::string> wrapped(std::string_view text, PageFont font, double widthMm,
                                 const TextWidth& textWidth) {
    std::vector<std::string> lines;
    const std::string plain = replaceAll(replaceAll(text, "\r\n", "\n"), "\t", " ");
    for (const std::string_view line : split(plain, '\n')) {
        wrapLine(line, font, widthMm, textWidth, lines);
    }
    while (!lines.empty() && trim(lines.back()).empty()) {
        lines.pop_back();
    }
    return lines;
}

}  // namespace campora

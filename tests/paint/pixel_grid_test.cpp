// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/pixel_grid.h"

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

constexpr std::uint32_t kPaper = 0;

/// A small picture that prints as text, row by row: "." where nothing was drawn, else the colour's
/// digit.
struct Picture {
    Picture(int width, int height)
        : pixels(static_cast<std::size_t>(width * height), kPaper),
          grid{pixels.data(), width, height, width} {}

    [[nodiscard]] std::string text() const {
        std::string result;
        for (int row = 0; row < grid.height; ++row) {
            for (int column = 0; column < grid.width; ++column) {
                const std::uint32_t color = at(column, row);
                result += color == kPaper ? '.' : static_cast<char>('0' + color);
            }
            result += row + 1 < grid.height ? "|" : "";
        }
        return result;
    }
    [[nodiscard]] std::uint32_t at(int column, int row) const {
        return pixels[static_cast<std::size_t>(row * grid.width + column)];
    }

    std::vector<std::uint32_t> pixels;
    PixelGrid grid;
};

TEST(RingFiller, FillsThePixelsWhoseCentresLieInside) {
    const char* const kNone = "......|......|......|......";
    const char* const kAll = "111111|111111|111111|111111";
    const std::tuple<const char*, std::vector<PixelPoint>, const char*> rows[] = {
        {"square on pixel edges", {{1, 1}, {4, 1}, {4, 3}, {1, 3}}, "......|.111..|.111..|......"},
        {"too thin for a centre", {{1, 1.6}, {5, 1.6}, {5, 2.4}, {1, 2.4}}, kNone},
        {"a second turn the same way leaves no hole",
         {{0, 0}, {6, 0}, {6, 4}, {0, 4}, {0, 0}, {2, 1}, {4, 1}, {4, 3}, {2, 3}, {2, 1}},
         kAll},
        {"a second turn the other way does",
         {{0, 0}, {6, 0}, {6, 4}, {0, 4}, {0, 0}, {2, 1}, {2, 3}, {4, 3}, {4, 1}, {2, 1}},
         "111111|11..11|11..11|111111"},
        {"figure of eight", {{0, 0}, {6, 4}, {6, 0}, {0, 4}}, "1....1|11..11|11..11|1....1"},
        {"far outside", {{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}}, kAll},
    };
    for (const auto& [name, ring, drawn] : rows) {
        SCOPED_TRACE(name);
        Picture picture(6, 4);
        RingFiller().fill(picture.grid, ring, 1);
        EXPECT_EQ(picture.text(), drawn);
    }
}

TEST(RingFiller, ARunOfStepsCoversWhatItsStepsCover) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> weave(-1.5, 1.5);
    std::vector<PixelPoint> north;
    std::vector<PixelPoint> south;
    for (int i = 0; i <= 30; ++i) {
        const double middle = 20 + weave(random);
        north.push_back({i * 1.9, middle - 8});
        south.push_back({i * 1.9 + 0.3, middle + 8});
    }
    Picture steps(60, 40);
    RingFiller filler;
    for (std::size_t i = 0; i + 1 < north.size(); ++i) {
        filler.fill(steps.grid, std::vector{north[i], north[i + 1], south[i + 1], south[i]}, 1);
    }
    Picture run(60, 40);
    std::vector<PixelPoint> ring = north;
    ring.insert(ring.end(), south.rbegin(), south.rend());
    filler.fill(run.grid, ring, 1);
    EXPECT_EQ(run.text(), steps.text());
    EXPECT_EQ(run.at(30, 20), 1U);
}

TEST(LineDrawer, DrawsLinesOfAnyDirectionWidthAndStyle) {
    using Lines = std::vector<std::pair<PixelPoint, PixelPoint>>;
    const LineDrawer::Pen thin{1, 1, false};
    const LineDrawer::Pen wide{1, 2, false};
    const LineDrawer::Pen dots{1, 1, true};
    const std::tuple<const char*, Lines, LineDrawer::Pen, const char*> rows[] = {
        {"a point", {{{2.5, 1.5}, {2.5, 1.5}}}, thin, ".......|..1....|......."},
        {"both ends belong to it", {{{1, 1}, {5, 1}}}, thin, ".......|.11111.|......."},
        {"slanting", {{{0, 0}, {6, 2}}}, thin, "11.....|..111..|.....11"},
        {"two pixels wide", {{{1, 0}, {3, 0}}}, wide, ".1111..|.1111..|......."},
        {"dotted", {{{0, 1}, {6, 1}}}, dots, ".......|1..1..1|......."},
        {"dots go on over short steps",
         {{{0, 1}, {2, 1}}, {{2, 1}, {4, 1}}, {{4, 1}, {6, 1}}},
         dots,
         ".......|1..1..1|......."},
        {"clipped at both ends", {{{-1e8, 1}, {1e8, 1}}}, thin, ".......|1111111|......."},
    };
    for (const auto& [name, lines, pen, drawn] : rows) {
        SCOPED_TRACE(name);
        Picture picture(7, 3);
        LineDrawer drawer;
        for (const auto& [from, to] : lines) {
            drawer.line(picture.grid, from, to, pen);
        }
        EXPECT_EQ(picture.text(), drawn);
    }
}

}  // namespace
}  // namespace campora

// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/page_painter.h"

#include <memory>
#include <string>

#include <QGuiApplication>
#include <QPainter>
#include <gtest/gtest.h>

namespace campora {
namespace {

/// Fonts need an application; other tests of this program may have made one.
class PagePainter : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "test";
        static char* names[] = {name, nullptr};
        if (QCoreApplication::instance() == nullptr) {
            application = std::make_unique<QGuiApplication>(count, names);
        }
    }
    static void TearDownTestSuite() { application.reset(); }
    static inline std::unique_ptr<QGuiApplication> application;

    PageSetup setup;
    PageContent content;
    MapExtent extent{{-60, -33}, 4000, 3000};

    void SetUp() override {
        setup.paper = papers()[1];
        content.title = "lote.rpt";
        content.legend.reference = {{Color::rgb(255, 0, 255), "Fumigado"}};
    }
    [[nodiscard]] PageLayout page() const {
        return layOutPage(setup, content, extent, {Texts(), '.'}, pageTextWidth());
    }
    [[nodiscard]] CanvasSize canvas() const {
        return pageTransform(extent, page().map, page().scale).canvas();
    }
};

bool fillRed(MapCanvas& canvas) {
    canvas.setBackgroundColor(Color::rgb(255, 0, 0));
    canvas.clear();
    return true;
}

TEST_F(PagePainter, AKilometreOnTheMapIsThatLongOnPaper) {
    const PageLayout laid = page();
    const ViewTransform view = pageTransform(extent, laid.map, laid.scale);
    const QImage map = pageMapPicture(laid, canvas(), 300, [&](MapCanvas& paper) {
        paper.clear();
        const LonLat south{extent.middle.x, extent.middle.y - 500 / 111320.0};
        const LonLat north{extent.middle.x, extent.middle.y + 500 / 111320.0};
        paper.line(view.mapToScreen(south.x, south.y), view.mapToScreen(north.x, north.y),
                   Color::rgb(0, 0, 0));
        return true;
    });
    constexpr double kDotsPerMm = 10;
    QImage sheet(static_cast<int>(laid.sheet.width * kDotsPerMm),
                 static_cast<int>(laid.sheet.height * kDotsPerMm), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    {
        QPainter painter(&sheet);
        paintPage(painter, kDotsPerMm, laid, map);
    }
    const int column = static_cast<int>((laid.map.x + laid.map.width / 2) * kDotsPerMm);
    int first = -1;
    int last = -1;
    const int top = static_cast<int>((laid.map.y + 1) * kDotsPerMm);
    const int bottom = static_cast<int>((laid.map.bottom() - 1) * kDotsPerMm);
    for (int y = top; y < bottom; ++y) {
        for (const int x : {column - 1, column, column + 1}) {
            if (qGray(sheet.pixel(x, y)) < 200) {
                first = first < 0 ? y : first;
                last = y;
            }
        }
    }
    EXPECT_NEAR((last - first) / kDotsPerMm * laid.scale / 1000, 1000, 10);
}

TEST_F(PagePainter, ThePdfIsOnePageThatHoldsItsTextsAsTexts) {
    for (const bool landscape : {true, false}) {
        setup.landscape = landscape;
        const QImage map = pageMapPicture(page(), canvas(), 150, fillRed);
        const std::string pdf = pagePdf(page(), map, {"lote & \"norte\"", "Campora"});
        EXPECT_TRUE(pdf.starts_with("%PDF-"));
        EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
        EXPECT_NE(pdf.find(landscape ? "/MediaBox [0 0 842." : "/MediaBox [0 0 595."),
                  std::string::npos);
        EXPECT_NE(pdf.find("/FontFile2"), std::string::npos) << "texts are texts";
        EXPECT_EQ(pdf.find("/DCTDecode"), std::string::npos) << "flat colours stay flat";
    }
}

}  // namespace
}  // namespace campora

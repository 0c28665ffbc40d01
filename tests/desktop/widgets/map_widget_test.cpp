// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/map_widget.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "desktop/widgets/edge_arrow.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

class MapWidgetTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        open({writeReport("lote.rpt")});
    }
    void wheel(QPoint at, int delta) {
        QWheelEvent turn(at, map().mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&map(), &turn);
    }
    /// Off by at most so many pixels from where the position is shown now.
    void expectShownAt(LonLat position, QPoint pixel, double pixels) {
        constexpr double units = RasterCanvas::kUnitsPerPixel;
        const CanvasPoint now = view().transform().mapToScreen(position.x, position.y);
        EXPECT_NEAR(now.x / units, pixel.x(), pixels);
        EXPECT_NEAR(now.y / units, pixel.y(), pixels);
    }
};

TEST_F(MapWidgetTest, WheelZoomsAboutThePointer) {
    const QPoint pointer(map().width() / 3, map().height() / 2);
    const LonLat held = under(pointer);
    const float whole = view().scaleX();
    wheel(pointer, 240);
    EXPECT_FLOAT_EQ(view().scaleX(), whole / 1.5F / 1.5F);
    expectShownAt(held, pointer, 3);
    EXPECT_TRUE(view().isPictureMoved());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !view().isPictureMoved(); }));
    const QImage settled = map().canvas().image();
    view().setView(view().scaleX(), view().scaleY(), view().scrollX(), view().scrollY());
    EXPECT_EQ(map().canvas().image(), settled);
}

TEST_F(MapWidgetTest, KeysZoomAndScroll) {
    const float whole = view().scaleX();
    map().setFocus();
    QTest::keyClick(&map(), Qt::Key_Plus);
    QTest::keyClick(&map(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FLOAT_EQ(view().scaleX(), whole / 2.25F);
    QTest::keyClick(&map(), Qt::Key_Minus);
    EXPECT_FLOAT_EQ(view().scaleX(), whole / 1.5F);

    const std::int32_t before = view().scrollX();
    QTest::keyClick(&map(), Qt::Key_Right);
    EXPECT_GT(view().scrollX(), before);
    QTest::keyClick(&map(), Qt::Key_Left);
    EXPECT_NEAR(view().scrollX(), before, 1);

    QTest::keyClick(&map(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_FLOAT_EQ(view().scaleX(), whole);
}

TEST_F(MapWidgetTest, ScrollBarsFollowTheViewAndMoveIt) {
    QScrollBar& bar = window->mapArea().horizontalBar();
    const QSize size = map().size();
    EXPECT_FALSE(bar.isVisible());
    view().zoomIn();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(map().size(), size);
    EXPECT_EQ(bar.value(), view().scrollX());

    bar.setValue(bar.maximum());
    EXPECT_EQ(view().scrollX(), bar.maximum());
    EXPECT_FALSE(controls().arrows.right);
}

}  // namespace
}  // namespace campora

// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/kml_export.h"

#include <gtest/gtest.h>

#include "support/exported_layers.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

struct KmlTest : testing::Test {
    KmlTest() {
        program.write("kmlhead.inc", "<a>\nb\n");
        program.write("kmlheadb.inc", "</a>");
        program.write("kmlPolyhead.inc", "(\r\n");
        program.write("kmlPolyend.inc", ")\r\n");
        program.write("kmlend.inc", "Fin de la campa\xF1"
                                    "a\n");
    }
    std::optional<Failure> save(const std::vector<const Gph*>& layers,
                                const std::string& programFolder) {
        NoProgress silent;
        ExportProgress progress(silent);
        return kmlExport(layers, path, programFolder, style, progress);
    }

    TempFolder program;
    TempFolder folder;
    MapStyle style;
    std::string path = folder.file("lote.kml");
    RingLayer triangle{{{{0.5, 0}, {1, 0}, {1, 1}}, {}, {{-58.3816, -34.25}}}};
    RingLayer dot{{{{1, 2}}}};
    PointLayer points{{{1, 2}}};
};

TEST_F(KmlTest, PutsThePolygonsBetweenTheTemplatesLastPointFirst) {
    path = folder.file("lote\t1]]>.kml");  // the name stands in a CDATA section
    EXPECT_EQ(save({&points, &triangle}, program.path()), std::nullopt);
    EXPECT_EQ(contentOf(path), "<a>\r\nb\r\nlote 1]]]]><![CDATA[>.kml\r\n</a>\r\n"
                               "(\r\n1.,1.,50\r\n1.,.,50\r\n.5,.,50\r\n)\r\n"
                               "(\r\n-58.3816,-34.25,50\r\n)\r\n"
                               "Fin de la campa\u00f1a\r\n");
}

}  // namespace
}  // namespace campora

// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/tool_table.h"

#include "app/map/dose_tool.h"
#include "app/map/info_tool.h"
#include "app/map/pan_tool.h"
#include "app/map/ruler_tool.h"
#include "app/map/zoom_select_tool.h"

namespace campora {

namespace {

template <class Tool>
std::unique_ptr<MapTool> make(const ToolSite& site) {
    return std::make_unique<Tool>(site);
}

constexpr MapToolRow kRows[] = {
    {ToolId::Pan, make<PanTool>},         {ToolId::ZoomSelect, make<ZoomSelectTool>},
    {ToolId::Ruler, make<RulerTool>},     {ToolId::Info, make<InfoTool>},
    {ToolId::PrescDosis, make<DoseTool>},
};

}  // namespace

std::span<const MapToolRow> mapToolRows() {
    return kRows;
}

}  // namespace campora

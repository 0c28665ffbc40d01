// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/drawing_commands.h"

#include <algorithm>
#include <optional>
#include <string>

#include "base/typed_number.h"
#include "model/measures.h"
#include "model/work_layer.h"
#include "work/work_kind.h"

namespace campora {

void DrawingCommands::mnuEditDrawAll() {
    map_.style().drawAll = !map_.style().drawAll;
    display_.styleChanged();
}

void DrawingCommands::mnuEditDoted() {
    bool& dotted = map_.style().drawDotted;
    dotted = !dotted;
    writeSwitch(settings_, SettingId::DrawDotted, dotted);
    display_.styleChanged();
}

void DrawingCommands::mnuEditDrawBorder() {
    bool& borders = map_.style().drawBorders;
    borders = !borders;
    writeSwitch(settings_, SettingId::DrawBorders, borders);
    display_.styleChanged();
}

TextId DrawingCommands::drawAllCaption() const {
    switch (map_.history().lastKind.value_or(WorkKind::Sprayer)) {
    case WorkKind::Seeder:
        return TextId::OnlySown;
    case WorkKind::OlderForm:
        return TextId::OnlyWorked;
    case WorkKind::Sprayer:
        break;
    }
    return TextId::OnlySprayed;
}

void DrawingCommands::mnuEditTrocha() {
    const std::optional<std::string> answer = map_.desk().askText(TextId::AskSwath, {});
    if (!answer || answer->empty()) {
        return;
    }
    const std::optional<double> metres = typedNumber(*answer);
    const float swath = static_cast<float>(std::min(metres.value_or(0), kWidestSwath));
    if (swath <= 0) {
        map_.desk().tell({metres ? TextId::SwathNotPositive : TextId::AnswerNotANumber, {*answer}});
        return;
    }
    for (Gph* layer : map_.getGphList()) {
        if (auto* const work = dynamic_cast<WorkLayer*>(layer)) {
            work->trocha(swath);
        }
    }
    if (map_.modeLayer() != nullptr) {
        map_.refreshColorScale();
    }
    if (map_.style().mode == ColorMode::Error) {
        recalcErrorAreas(map_);
    }
    display_.refresh();  // hectares are others
    display_.redraw();
}

void DrawingCommands::chooseColor(SettingId id) {
    const auto settings = colorSettings();
    const auto found = std::find_if(settings.begin(), settings.end(),
                                    [id](const ColorSetting& row) { return row.id == id; });
    Color& color = map_.style().colors.*found->color;
    const std::optional<Color> chosen = map_.desk().dialogs.chooseColor(color);
    if (!chosen) {
        return;
    }
    color = *chosen;
    writeColor(settings_, id, color);
    display_.showLegend();
    display_.styleChanged();
}

void DrawingCommands::mnuEditColorDefect() {
    map_.style().colors = {};
    for (const auto& [id, color] : colorSettings()) {
        writeColor(settings_, id, map_.style().colors.*color);
    }
    display_.showLegend();
    display_.styleChanged();
}

}  // namespace campora

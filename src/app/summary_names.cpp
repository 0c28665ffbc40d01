// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/summary_names.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>

#include "base/text.h"

namespace campora {

namespace {

struct Name {
    std::string_view spanish;
    TextId text;
};

/// What readers and consoles write, without blanks at the end.
constexpr Name kNames[] = {
    {"Nombre Archivo:", TextId::SummaryFileName},
    {"Numero de Serie:", TextId::SummarySerial},
    {"Ver. Firmware:", TextId::SummaryFirmware},
    {"Ver. Hardware:", TextId::SummaryHardware},
    {"Hect. Sembradas:", TextId::SummarySown},
    {"Hectáreas fumig:", TextId::SummarySprayed},
    {"Hect. Trabajadas:", TextId::SummaryWorked},
    {"Dosis Prom.:", TextId::SummaryMeanDose},
    {"Dosis Promedio:", TextId::SummaryAverageDose},
    {"Vel Promedio:", TextId::SummarySpeed},
    {"Hora inicio:", TextId::SummaryStart},
    {"Duración:", TextId::SummaryDuration},
    {"Hectareas Error", TextId::SummaryErrorArea},
    {"Fecha:", TextId::SummaryDate},
    {"Hectáreas:", TextId::SummaryHectares},
    {"Litros aplicados:", TextId::SummaryLitres},
    {"Producto:", TextId::SummaryProduct},
    {"Piloto:", TextId::SummaryPilot},
    {"Lote:", TextId::SummaryField},
    {"Establecimiento:", TextId::SummaryFarm},
    {"Cultivo:", TextId::SummaryCrop},
    {"Máquina:", TextId::SummaryMachine},
    {"Viento:", TextId::SummaryWind},
    {"Operario:", TextId::SummaryOperator},
    {"Ancho Labor", TextId::SummaryWorkingWidth},
    {"Cant. de Canales", TextId::SummaryChannels},
    {"Nombre", TextId::DialogName},
    {"Descripcion", TextId::SummaryDescription},
    {"Resolución", TextId::SummaryResolution},
    {"Superficie:", TextId::SummaryLotArea},
    {"Perímetro:", TextId::SummaryPerimeter},
    {"Vértices:", TextId::SummaryVertices},
};

/// Names with the number of a channel in the place %1.
constexpr Name kChannelNames[] = {
    {"Dosis Prom. (C %1):", TextId::SummaryChannelDose},
    {"Archivo (C %1)", TextId::SummaryChannelFile},
    {"Columna (C %1)", TextId::SummaryChannelColumn},
    {"Superficie (C %1)", TextId::SummaryChannelArea},
    {"Producto total (C %1)", TextId::SummaryChannelTotal},
};

constexpr Name kUnits[] = {
    {"Has", TextId::UnitHectares},
    {"lts", TextId::UnitLitres},
    {"lt/hect", TextId::UnitLitresPerHectare},
    {"unid/hect", TextId::UnitUnitsPerHectare},
    {"unid", TextId::UnitProduct},
    {"lts/min", TextId::UnitLitresPerMinute},
};

std::optional<TextId> find(std::span<const Name> names, std::string_view spanish) {
    const auto found = std::find_if(names.begin(), names.end(), [spanish](const Name& name) {
        return equalIgnoringCase(name.spanish, spanish);
    });
    return found == names.end() ? std::nullopt : std::optional(found->text);
}

/// What stands in the place %1 of `pattern`, when `text` is the pattern but for that.
std::optional<std::string> numberIn(std::string_view text, std::string_view pattern) {
    constexpr std::string_view kPlace = "%1";
    const std::size_t at = pattern.find(kPlace);
    const std::string_view before = pattern.substr(0, at);
    const std::string_view after = pattern.substr(at + kPlace.size());
    if (text.size() <= before.size() + after.size() || !text.starts_with(before) ||
        !text.ends_with(after)) {
        return std::nullopt;
    }
    const std::string_view number =
        text.substr(before.size(), text.size() - before.size() - after.size());
    const bool isNumber = number.find_first_not_of("0123456789") == std::string_view::npos;
    return isNumber ? std::optional(std::string(number)) : std::nullopt;
}

}  // namespace

std::string shownSummaryName(std::string_view name, const Texts& texts) {
    const std::string_view spanish = trim(name);
    if (const std::optional<TextId> found = find(kNames, spanish)) {
        return std::string(texts(*found));
    }
    for (const auto& [pattern, text] : kChannelNames) {
        if (const std::optional<std::string> number = numberIn(spanish, pattern)) {
            return texts.format(text, {*number});
        }
    }
    return std::string(name);
}

std::string shownUnit(std::string_view unit, const Texts& texts) {
    const std::optional<TextId> found = find(kUnits, trim(unit));
    return std::string(found ? texts(*found) : unit);
}

}  // namespace campora

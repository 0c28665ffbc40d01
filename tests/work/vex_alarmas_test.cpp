// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/vex_alarmas.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(VexAlarmas, NamesAlarmsOfTheMachine) {
    const std::tuple<WorkKind, int, const char*> rows[] = {
        {WorkKind::Seeder, 0, "Falla de siembra"},
        {WorkKind::Seeder, 2, ""},
        {WorkKind::Seeder, 24, "Motor 4 no responde"},
        {WorkKind::OlderForm, 0, "Falla de siembra"},
        {WorkKind::Sprayer, 10, "Alarma de Verificar Fusibles"},
        {WorkKind::Sprayer, 32, ""},
    };
    for (const auto& [kind, bit, text] : rows) {
        EXPECT_EQ(alarmText(Texts(), kind, bit), text) << bit;
    }
    EXPECT_EQ(alarmNames(Texts(), WorkKind::Sprayer, 0x80000302),
              "Presión Mínima; Alarma de velocidad; Alarma de nodo apagado");
}

TEST(VexAlarmas, KnowsTheBitsThatHaveAText) {
    EXPECT_EQ(knownAlarms(WorkKind::Seeder), 0x37777333U);
    EXPECT_EQ(knownAlarms(WorkKind::OlderForm), 0x37777333U);
    EXPECT_EQ(knownAlarms(WorkKind::Sprayer), 0x00000703U);
}

}  // namespace
}  // namespace campora

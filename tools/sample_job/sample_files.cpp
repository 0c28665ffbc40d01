// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/sample_files.h"

#include "sample_job/sample_jobs.h"
#include "sample_job/work_files.h"

namespace campora::sample {

std::vector<SampleFile> sampleFiles() {
    const Job spraying = sprayingJob();
    const std::string track = "Log0042.nbr";
    const SummaryLines further{
        {"Establecimiento", "El Ñandubay"},
        {"Lote", "4, bañado del arroyo"},
        {"Cultivo", "Barbecho químico para soja"},
        {"Producto", "Glifosato 66,2 %, 1,8 l/ha"},
        {"Máquina", "Pulverizadora autopropulsada, botalón de 28 m"},
        {"Viento", "11 km/h, SE"},
    };
    return {
        {"lote-demo.rpt", reportBytes(spraying)},
        {"lote-demo.txt", tableText(spraying)},
        {track, trackText(spraying)},
        {"Wrk0042.txt", summaryText(spraying, track, further)},
        {"siembra-demo.rpt", reportBytes(sowingJob())},
    };
}

}  // namespace campora::sample

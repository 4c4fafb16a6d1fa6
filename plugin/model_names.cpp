// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/model_names.h"

const QString QVFax = QStringLiteral("KELMAR Orbis FAX");
const QString QVDocStore = QStringLiteral("KELMAR Orb-DocStore");
const QString QVAlder = QStringLiteral("KELMAR Orbis110Series PS");
const QString QVBirch = QStringLiteral("KELMAR Orbis2200Series PS");
const QString QVCedar = QStringLiteral("KELMAR Orb310/313Series");
const QString QVDogwood = QStringLiteral("KELMAR Orb320/720Series");
const QString QVElm = QStringLiteral("KELMAR Orb330c/333cSeries");
const QString QVFir = QStringLiteral("KELMAR Orb340/343Series");
const QString QVGinkgo = QStringLiteral("KELMAR Orb350/353Series");
const QString QVHazel = QStringLiteral("KELMAR Orbis2600cSeries");
const QString QVIvy = QStringLiteral("KELMAR OrbM880Series");
const QString QVJuniper = QStringLiteral("KELMAR Orb2900CSeries");

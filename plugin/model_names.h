// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

// Model names of the family as spelled in their PPDs; compared with the manager's current model.
extern const QString QVFax;      // "KELMAR Orbis FAX"
extern const QString QVDocStore; // "KELMAR Orb-DocStore"
extern const QString QVAlder;    // "KELMAR Orbis110Series PS"
extern const QString QVBirch;    // "KELMAR Orbis2200Series PS"
extern const QString QVCedar;    // "KELMAR Orb310/313Series"
extern const QString QVDogwood;  // "KELMAR Orb320/720Series"
extern const QString QVElm;      // "KELMAR Orb330c/333cSeries"
extern const QString QVFir;      // "KELMAR Orb340/343Series"
extern const QString QVGinkgo;   // "KELMAR Orb350/353Series"
extern const QString QVHazel;    // "KELMAR Orbis2600cSeries"
extern const QString QVIvy;      // "KELMAR OrbM880Series"
extern const QString QVJuniper;  // "KELMAR Orb2900CSeries"

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/paths.h"

#include <QString>

#include <cups/ppd.h>

#include <array>
#include <memory>

// One model: its PPD and the features that affect the options of the panels.
struct FamilyModel
{
    const char *file;
    const char *modelName;
    bool privatePrinting;
    bool advanced;
    bool resolution;
    bool background;
};

inline constexpr auto family = std::to_array<FamilyModel>({
    {"kelo110", "KELMAR Orbis110Series PS", false, false, false, true},
    {"kelo2200", "KELMAR Orbis2200Series PS", true, false, false, true},
    {"kel310", "KELMAR Orb310/313Series", true, false, false, true},
    {"kel320", "KELMAR Orb320/720Series", true, true, false, true},
    {"kel330c", "KELMAR Orb330c/333cSeries", true, false, false, true},
    {"kel340", "KELMAR Orb340/343Series", true, true, true, true},
    {"kel350", "KELMAR Orb350/353Series", true, true, true, true},
    {"kelo2600", "KELMAR Orbis2600cSeries", true, false, true, false},
    {"kelm880", "KELMAR OrbM880Series", true, true, true, true},
    {"kel2900c", "KELMAR Orb2900CSeries", true, true, true, true},
});

struct PpdClose
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdFile = std::unique_ptr<ppd_file_t, PpdClose>;

inline QString familyPath(const FamilyModel &model)
{
    return buildPath("/ppds/%1.ppd").arg(QLatin1StringView(model.file));
}

// Null if libcups cannot read it.
inline PpdFile openFamilyPpd(const FamilyModel &model)
{
    return PpdFile(ppdOpenFile(familyPath(model).toLocal8Bit().constData()));
}

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <string_view>

struct ppd_file_s;

namespace constraints {

// Two interpretations of the constraints of a PPD. The resulting engine does not refer to the PPD. A null PPD
// results in an engine without lines.

// Literal: the pairs of the PPD's UIConstraints and NonUIConstraints, whether or not it has these options and
// choices. A line with a name that `isName` rejects is left out.
Engine linesAsWritten(const ppd_file_s *ppd, bool (*isName)(std::string_view));

// As in libcups: the same lines, and cupsUIConstraints of one or more terms. Names have the spelling of the
// PPD's options and choices; lines with unknown names are left out. Choices of PageRegion are treated as
// choices of PageSize, as libcups does.
Engine linesAsUnderstood(ppd_file_s *ppd);

// Whether libcups treats two names as equal; it ignores the case of ASCII letters.
bool isSameName(std::string_view first, std::string_view second);

inline constexpr std::string_view pageSizeName = "PageSize";
inline constexpr std::string_view pageRegionName = "PageRegion";

} // namespace constraints

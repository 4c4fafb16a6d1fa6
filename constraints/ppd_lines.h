// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <string_view>

struct ppd_file_s;

namespace constraints {

// The two ways to read what a PPD forbids. Both give an engine that no longer needs the PPD; a null PPD gives
// one without lines.

// Word for word: the pairs of the PPD's UIConstraints and NonUIConstraints, whether or not it has such
// options and choices. A line with a name that `isName` refuses is left out.
Engine linesAsWritten(const ppd_file_s *ppd, bool (*isName)(std::string_view));

// As libcups understands them: the same lines, and cupsUIConstraints of one term or more; names as the PPD's
// options and choices spell them; lines that name others left out. Choices of PageRegion are choices of
// PageSize, which is what libcups takes for either.
Engine linesAsUnderstood(ppd_file_s *ppd);

// Whether two names are the same to libcups, which ignores the case of ASCII letters.
bool isSameName(std::string_view first, std::string_view second);

inline constexpr std::string_view pageSizeName = "PageSize";
inline constexpr std::string_view pageRegionName = "PageRegion";

} // namespace constraints

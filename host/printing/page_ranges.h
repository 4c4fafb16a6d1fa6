// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

namespace host {

// Converts page ranges as typed by a user ("1-3, 8, 12-") to the form of job options: ascending, merged,
// without spaces ("1-3,8,12-"). Pages are counted from 1. Null with a message if the text is not a list of
// pages; an empty text, which means all pages, stays empty.
std::optional<QString> normalizedPageRanges(const QString &text, QString *error);

// The following functions take normalized ranges.

// Whether the ranges contain a page.
bool containsPage(const QString &ranges, int page);
// The number of pages from 1 to `last` that are in the ranges and in a page set: "odd", "even", or otherwise
// all pages.
int countPages(const QString &ranges, int last, const QString &pageSet = {});
// The first page of the last range; 0 if the ranges are empty.
int lastBeginning(const QString &ranges);
// Adds a page to the ranges, or removes it if they contain it. `count` is the number of pages of the
// document; ranges beyond it are dropped. Returns an empty string if the ranges then contain all pages, and
// null if no page is left.
std::optional<QString> withPageToggled(const QString &ranges, int page, int count);

} // namespace host

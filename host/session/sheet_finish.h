// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLineF>
#include <QList>
#include <QPointF>

namespace host {

class DialogSession;

// Where the sheets of a job are bound, stapled and punched, as far as the names of the PPD's choices tell.
// The positions are those on an upright page, from 0 to 1 of its width and height. A value.
struct SheetFinish
{
    enum class Binding {
        None, // one-sided
        LongEdge,
        ShortEdge
    };
    Binding binding = Binding::None; // the edge at which two-sided pages turn
    QList<QLineF> staples;
    QList<QPointF> holes;
    bool isSaddleStitched = false; // folded in the middle of its long edge, with two staples in the fold

    bool isTwoSided() const { return binding != Binding::None; }
    // The same staples and holes as they lie on the back of the sheet.
    SheetFinish onTheBack() const;

    bool operator==(const SheetFinish &) const = default;
};

SheetFinish sheetFinish(const DialogSession &session);

} // namespace host

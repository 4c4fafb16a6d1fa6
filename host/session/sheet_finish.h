// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLineF>
#include <QList>
#include <QPointF>

namespace host {

class DialogSession;

// The positions of binding, staples and holes on the sheets of a job, as far as they can be derived from the
// names of the PPD's choices. Positions refer to an upright page, from 0 to 1 of its width and height. A
// value.
struct SheetFinish
{
    enum class Binding {
        None, // one-sided
        LongEdge,
        ShortEdge
    };
    Binding binding = Binding::None; // the edge on which two-sided pages are turned
    QList<QLineF> staples;
    QList<QPointF> holes;
    bool isFolded = false;         // in the middle of its long edge, as a booklet
    bool isSaddleStitched = false; // folded, with two staples in the fold

    bool isTwoSided() const { return binding != Binding::None; }
    // The same staples and holes on the back of the sheet.
    SheetFinish onTheBack() const;

    bool operator==(const SheetFinish &) const = default;
};

SheetFinish sheetFinish(const DialogSession &session);

} // namespace host

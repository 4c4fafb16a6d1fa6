// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/sheet_finish.h"

#include "host/printing/standard_names.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"

#include <algorithm>

namespace host {

namespace {

constexpr double inset = 0.04;  // distance of a staple or hole from the edge
constexpr double length = 0.06; // length of a staple
constexpr double spread = 0.2;  // distance of two staples or holes from the middle of the edge

// The side of the paper that is named in a choice's keyword, in lower case.
struct Place
{
    bool isTop, isBottom, isLeft, isRight;

    explicit Place(const QString &choice)
        : isTop(choice.contains(QLatin1String("top")) || choice.contains(QLatin1String("upper"))),
          isBottom(choice.contains(QLatin1String("bottom")) || choice.contains(QLatin1String("lower"))),
          isLeft(choice.contains(QLatin1String("left"))), isRight(choice.contains(QLatin1String("right")))
    {
    }
    bool isCorner() const { return (isTop || isBottom) && (isLeft || isRight); }
    bool isEdge() const { return isTop + isBottom + isLeft + isRight == 1; }
    // A point near the edge, by its distance from the edge and its distance along the edge.
    QPointF at(double depth, double along) const
    {
        const double across = isTop || isLeft ? depth : 1 - depth;
        return isTop || isBottom ? QPointF(along, across) : QPointF(across, along);
    }
};

void addStaples(const QString &choice, SheetFinish *finish)
{
    const Place place(choice);
    if (choice.contains(QLatin1String("saddle"))) {
        finish->isSaddleStitched = true;
    } else if (place.isCorner()) {
        const double x = place.isLeft ? inset : 1 - inset, y = place.isTop ? inset : 1 - inset;
        const double slope = place.isLeft == place.isTop ? -1 : 1; // diagonal across the corner
        const QPointF half(length / 2, slope * length / 2);
        finish->staples.append(QLineF(QPointF(x, y) - half, QPointF(x, y) + half));
    } else if (place.isEdge()) {
        const bool isSingle = choice.contains(QLatin1String("single"));
        for (const double middle : isSingle ? QList<double>{0.5} : QList<double>{0.5 - spread, 0.5 + spread})
            finish->staples.append(
                {place.at(inset, middle - length / 2), place.at(inset, middle + length / 2)});
    }
}

void addHoles(const QString &choice, SheetFinish *finish)
{
    const Place place(choice);
    if (!place.isEdge())
        return;
    const auto digit =
        std::find_if(choice.begin(), choice.end(), [](QChar c) { return c >= u'2' && c <= u'4'; });
    const int count = digit == choice.end() ? 2 : digit->digitValue();
    for (int i = 0; i < count; ++i)
        finish->holes.append(place.at(inset, 0.5 + spread * (2.0 * i / (count - 1) - 1)));
}

} // namespace

SheetFinish SheetFinish::onTheBack() const
{
    const auto turned = [this](const QPointF &point) {
        return binding == Binding::ShortEdge ? QPointF(point.x(), 1 - point.y())
                                             : QPointF(1 - point.x(), point.y());
    };
    SheetFinish back = *this;
    for (QLineF &staple : back.staples)
        staple = QLineF(turned(staple.p1()), turned(staple.p2()));
    for (QPointF &hole : back.holes)
        hole = turned(hole);
    return back;
}

SheetFinish sheetFinish(const DialogSession &session)
{
    SheetFinish finish;
    if (!session.ppd())
        return finish;
    const QString sides = standardValueOfMarks(session.ppd(), QStringLiteral("sides"), {});
    if (sides == QLatin1String("two-sided-short-edge"))
        finish.binding = SheetFinish::Binding::ShortEdge;
    else if (sides.startsWith(QLatin1String("two-sided")))
        finish.binding = SheetFinish::Binding::LongEdge;
    finish.isFolded = layoutAsPrinted(session).isBooklet();
    for (const QString &keyword : session.ppd()->settableKeywords()) {
        const QString choice = session.ppd()->markedChoice(keyword).toLower();
        if (keyword.contains(QLatin1String("staple"), Qt::CaseInsensitive))
            addStaples(choice, &finish);
        else if (keyword.contains(QLatin1String("punch"), Qt::CaseInsensitive))
            addHoles(choice, &finish);
    }
    return finish;
}

} // namespace host

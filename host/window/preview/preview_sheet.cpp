// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_sheet.h"

#include "host/window/look/announced.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtMath>

#include <array>
#include <cmath>

namespace host {

namespace {

constexpr int margin = 8;      // pixels
constexpr int lineStep = 40;   // pixels that an arrow key scrolls
constexpr int wheelStep = 120; // rotation of a wheel, in eighths of a degree
constexpr std::array zooms{1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0};

} // namespace

PreviewSheet::PreviewSheet(QWidget *parent) : QAbstractScrollArea(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    makeImage(this);
    setAccessibleName(tr("Preview"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // until there is something to scroll
    viewport()->setAutoFillBackground(false);
    for (QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()}) {
        bar->setSingleStep(lineStep);
        bar->setLayoutDirection(Qt::LeftToRight); // pages are the same in every language
    }
}

void PreviewSheet::showPage(const QImage &page)
{
    m_page = page;
    m_text.clear();
    setAccessibleDescription({});
    scale();
}

void PreviewSheet::setPrinted(bool isPrinted)
{
    m_isPrinted = isPrinted;
    viewport()->update();
}

void PreviewSheet::setFinish(const SheetFinish &finish, bool isBack)
{
    m_finish = isBack ? finish.onTheBack() : finish;
    m_isBack = isBack;
    viewport()->update();
}

void PreviewSheet::showText(const QString &text)
{
    m_page = QImage();
    m_text = text;
    setAccessibleDescription(text);
    scale();
}

double PreviewSheet::zoom() const
{
    return zooms[static_cast<size_t>(m_step)];
}

bool PreviewSheet::canZoom(int steps) const
{
    const int step = m_step + steps;
    return !m_page.isNull() && step >= 0 && step < static_cast<int>(zooms.size());
}

void PreviewSheet::zoomBy(int steps)
{
    setStep(m_step + steps, QRectF(viewport()->rect()).center());
}

void PreviewSheet::zoomToFit()
{
    setStep(0, {});
}

// Sets the zoom. The point of the page at `fixed`, a position in the viewport, does not move.
void PreviewSheet::setStep(int step, const QPointF &fixed)
{
    step = qBound(0, step, static_cast<int>(zooms.size()) - 1);
    if (step == m_step || m_page.isNull())
        return;
    const QRectF before = place();
    const QPointF part((fixed.x() - before.x()) / before.width(), (fixed.y() - before.y()) / before.height());
    m_step = step;
    setFocusPolicy(m_step > 0 ? Qt::StrongFocus : Qt::NoFocus);
    scale();
    const QSizeF size = pageSize(zoom());
    horizontalScrollBar()->setValue(qRound(part.x() * size.width() + margin - fixed.x()));
    verticalScrollBar()->setValue(qRound(part.y() * size.height() + margin - fixed.y()));
}

int PreviewSheet::pixels() const
{
    const QSizeF size = pageSize(zoom()) * devicePixelRatio();
    return qCeil(qMax(size.width(), size.height()));
}

void PreviewSheet::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    scale();
}

// The size of the page in pixels, which does not depend on whether there are scroll bars.
QSizeF PreviewSheet::pageSize(double zoom) const
{
    const QSizeF room = QSizeF(maximumViewportSize() - QSize(2 * margin, 2 * margin));
    if (m_page.isNull() || room.isEmpty())
        return {};
    return QSizeF(m_page.size()).scaled(room * zoom, Qt::KeepAspectRatio);
}

// The rectangle of the page in the viewport.
QRectF PreviewSheet::place() const
{
    const QSizeF size = pageSize(zoom());
    const auto start = [](double size, int room, const QScrollBar *bar) {
        return bar->maximum() > 0 ? margin - bar->value() : std::floor((room - size) / 2);
    };
    return {{start(size.width(), viewport()->width(), horizontalScrollBar()),
             start(size.height(), viewport()->height(), verticalScrollBar())},
            size};
}

void PreviewSheet::scale()
{
    m_scaled = QPixmap();
    const QSize size = (pageSize(1) * devicePixelRatio()).toSize();
    if (m_step == 0 && !size.isEmpty()) {
        m_scaled = QPixmap::fromImage(m_page.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(devicePixelRatio());
    }
    fitScrollBars();
    viewport()->update();
    Q_EMIT scaled();
}

void PreviewSheet::fitScrollBars()
{
    const QSize whole = pageSize(zoom()).toSize() + QSize(2 * margin, 2 * margin);
    for (QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()}) {
        const bool isAcross = bar == horizontalScrollBar();
        const int room = isAcross ? viewport()->width() : viewport()->height();
        bar->setPageStep(room);
        bar->setRange(0, m_step == 0 ? 0 : qMax(0, (isAcross ? whole.width() : whole.height()) - room));
    }
}

void PreviewSheet::scrollContentsBy(int, int)
{
    viewport()->update();
}

void PreviewSheet::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        m_wheel = 0;
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / wheelStep;
    m_wheel -= steps * wheelStep;
    setStep(m_step + steps, event->position());
    event->accept();
}

void PreviewSheet::mousePressEvent(QMouseEvent *event)
{
    if (m_step == 0 || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_grip = event->position().toPoint();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PreviewSheet::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton) || m_step == 0)
        return;
    const QPoint moved = event->position().toPoint() - m_grip;
    m_grip += moved;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void PreviewSheet::mouseReleaseEvent(QMouseEvent *)
{
    viewport()->unsetCursor();
}

// Draws the binding edge, staples and holes. It is unknown how the printer turns a rotated page for stapling,
// so such a page is shown without them, except for staples in the fold.
void PreviewSheet::paintFinish(QPainter *painter, const QRectF &place) const
{
    constexpr double strip = 4;   // pixels; width of the binding edge
    constexpr double metal = 3;   // pixels; width of a staple
    constexpr double hole = 0.02; // diameter, relative to the width of the page
    const bool isUpright = place.height() >= place.width();
    const auto at = [&place](const QPointF &point) {
        return place.topLeft() + QPointF(point.x() * place.width(), point.y() * place.height());
    };
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_finish.isTwoSided() && !m_finish.isFolded) {
        const bool isAtSide = (m_finish.binding == SheetFinish::Binding::LongEdge) == isUpright;
        QRectF edge = place;
        if (isAtSide)
            edge.setWidth(strip);
        else
            edge.setHeight(strip);
        if (m_isBack)
            edge.translate(isAtSide ? place.width() - strip : 0, isAtSide ? 0 : place.height() - strip);
        painter->fillRect(edge, palette().color(QPalette::Highlight));
    }
    QList<QLineF> staples = isUpright ? m_finish.staples : QList<QLineF>();
    if (m_finish.isSaddleStitched || m_finish.isFolded) {
        const QLineF fold = isUpright ? QLineF(0, 0.5, 1, 0.5) : QLineF(0.5, 0, 0.5, 1);
        painter->setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
        painter->drawLine(at(fold.p1()), at(fold.p2()));
        for (const double middle : m_finish.isSaddleStitched ? QList{0.25, 0.75} : QList<double>())
            staples.append({fold.pointAt(middle - 0.04), fold.pointAt(middle + 0.04)});
    }
    painter->setPen(QPen(QColor(0x50, 0x50, 0x50), metal, Qt::SolidLine, Qt::RoundCap));
    for (const QLineF &staple : std::as_const(staples))
        painter->drawLine(at(staple.p1()), at(staple.p2()));
    painter->setPen(QPen(Qt::darkGray, 1));
    painter->setBrush(palette().color(QPalette::Window));
    for (const QPointF &point : isUpright ? m_finish.holes : QList<QPointF>())
        painter->drawEllipse(at(point), hole * place.width(), hole * place.width());
    painter->setBrush(Qt::NoBrush);
}

void PreviewSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    if (m_page.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_text);
        return;
    }
    const QRectF place = this->place();
    painter.fillRect(place.translated(2, 2), palette().color(QPalette::Shadow));
    painter.fillRect(place, palette().color(QPalette::Window));
    painter.setOpacity(m_isPrinted ? 1 : paleness);
    if (m_scaled.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, m_page);
    } else {
        painter.drawPixmap(place.topLeft(), m_scaled);
    }
    painter.setOpacity(1);
    if (m_isPrinted)
        paintFinish(&painter, place);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

} // namespace host

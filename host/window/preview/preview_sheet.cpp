// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_sheet.h"

#include <QPainter>

namespace host {

namespace {

constexpr int margin = 8; // pixels

} // namespace

PreviewSheet::PreviewSheet(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Preview"));
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
    update();
}

void PreviewSheet::setFinish(const SheetFinish &finish, bool isBack)
{
    m_finish = isBack ? finish.onTheBack() : finish;
    m_isBack = isBack;
    update();
}

void PreviewSheet::showText(const QString &text)
{
    m_page = QImage();
    m_text = text;
    setAccessibleDescription(text);
    scale();
}

void PreviewSheet::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    scale();
}

void PreviewSheet::scale()
{
    const QSize room = (size() - QSize(2 * margin, 2 * margin)) * devicePixelRatio();
    m_scaled = QPixmap();
    if (!m_page.isNull() && !room.isEmpty()) {
        m_scaled = QPixmap::fromImage(m_page.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(devicePixelRatio());
    }
    update();
}

// The orientation of a rotated page in the stapler is unknown: it is shown without staples and holes, except
// those in the fold.
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
    if (m_finish.isTwoSided()) {
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
    if (m_finish.isSaddleStitched) {
        const QLineF fold = isUpright ? QLineF(0, 0.5, 1, 0.5) : QLineF(0.5, 0, 0.5, 1);
        painter->setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
        painter->drawLine(at(fold.p1()), at(fold.p2()));
        for (const double middle : {0.25, 0.75})
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
    QPainter painter(this);
    if (m_scaled.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_text);
        return;
    }
    const QSize size = m_scaled.deviceIndependentSize().toSize();
    const QRect place(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    painter.fillRect(place.translated(2, 2), palette().color(QPalette::Shadow));
    painter.fillRect(place, palette().color(QPalette::Window));
    painter.setOpacity(m_isPrinted ? 1 : paleness);
    painter.drawPixmap(place.topLeft(), m_scaled);
    painter.setOpacity(1);
    if (m_isPrinted)
        paintFinish(&painter, place);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

} // namespace host

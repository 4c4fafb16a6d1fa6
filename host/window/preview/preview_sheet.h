// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/sheet_finish.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QPixmap>

namespace host {

// Shows one page as large as possible, or a text in its place. The page can be enlarged, for example with
// Ctrl and the wheel. It is then scrolled with the scroll bars, the arrow keys or the wheel, or by dragging
// it.
class PreviewSheet : public QAbstractScrollArea
{
    Q_OBJECT
public:
    // The opacity of pages that are not printed.
    static constexpr double paleness = 0.3;

    explicit PreviewSheet(QWidget *parent);

    void showPage(const QImage &page);
    // Plain text; empty for a page that is still being rendered.
    void showText(const QString &text);

    // Sets whether the page is printed; other pages are shown pale.
    void setPrinted(bool isPrinted);
    // Sets the binding edge, staples and holes to draw on the page, which is the front or the back of a
    // sheet.
    void setFinish(const SheetFinish &finish, bool isBack);

    // The size of the page relative to the size at which the whole page is visible.
    double zoom() const;
    bool canZoom(int steps) const;
    // Enlarges the page by this number of steps, or reduces it if the number is negative. The center of the
    // visible part stays where it is.
    void zoomBy(int steps);
    void zoomToFit();
    // The larger side of the page on the screen, in device pixels; 0 if no page is shown.
    int pixels() const;

    QSize sizeHint() const override { return {190, 260}; }
    QSize minimumSizeHint() const override { return {120, 120}; }

Q_SIGNALS:
    // The page has another size on the screen.
    void scaled();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void scale();
    void fitScrollBars();
    void setStep(int step, const QPointF &fixed);
    QSizeF pageSize(double zoom) const;
    QRectF place() const;
    void paintFinish(QPainter *painter, const QRectF &place) const;

    QImage m_page;
    QPixmap m_scaled; // the whole page, unless it is enlarged
    QString m_text;
    int m_step = 0;  // of the zoom
    int m_wheel = 0; // rotation that is not a whole step yet
    QPoint m_grip;   // where the page is being dragged
    bool m_isPrinted = true;
    SheetFinish m_finish; // on this side
    bool m_isBack = false;
};

} // namespace host

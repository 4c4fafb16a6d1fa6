// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/sheet_finish.h"

#include <QPixmap>
#include <QWidget>

namespace host {

// Shows one page as large as possible, or a text in its place.
class PreviewSheet : public QWidget
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

    QSize sizeHint() const override { return {190, 260}; }
    QSize minimumSizeHint() const override { return {120, 120}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void scale();
    void paintFinish(QPainter *painter, const QRectF &place) const;

    QImage m_page;
    QPixmap m_scaled;
    QString m_text;
    bool m_isPrinted = true;
    SheetFinish m_finish; // on this side
    bool m_isBack = false;
};

} // namespace host

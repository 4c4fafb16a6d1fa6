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
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

} // namespace host

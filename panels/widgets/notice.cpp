// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/notice.h"

#include "platform/layout_loader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>

namespace {

const bool noticeIsRegistered = [] {
    platform::registerLayoutWidget<QVNotice_M880>(QStringLiteral("QVNotice_M880"));
    return true;
}();

constexpr int cornerRadius = 6; // px
constexpr int leastWidth = 280; // px
constexpr int glyphSize = 18;   // px

// Draws an "i" or a "!" on a disc, in a square of 20 units.
void drawGlyph(QPainter &painter, const QColor &color, bool warning)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(1, 1, 18, 18));
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(10, warning ? 5.5 : 9.5), QPointF(10, warning ? 10.5 : 14.5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(10, warning ? 14 : 6.2), 1.2, 1.2);
}

} // namespace

QVNotice_M880::QVNotice_M880(QWidget *parent)
    : QFrame(parent), m_icon(new QWidget(this)), m_text(new QLabel(this))
{
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_icon->setFixedSize(glyphSize, glyphSize);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(10);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
    hide();
}

QString QVNotice_M880::text() const
{
    return m_text->text();
}

void QVNotice_M880::setText(const QString &text)
{
    m_text->setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
}

void QVNotice_M880::setWarning(bool warning)
{
    m_warning = warning;
    update();
}

QSize QVNotice_M880::minimumSizeHint() const
{
    const int width = isVisible() ? this->width() : leastWidth;
    return {leastWidth, heightForWidth(qMax(width, leastWidth))};
}

// Selectable text needs a complete text document, so it is enabled only when the notice is shown.
void QVNotice_M880::showEvent(QShowEvent *event)
{
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFrame::showEvent(event);
}

void QVNotice_M880::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

// A tint of the highlight colour over the window colour is unobtrusive in light and dark palettes.
void QVNotice_M880::paintEvent(QPaintEvent *)
{
    const QColor color = m_warning ? QColor(0xe6, 0x9f, 0x00) : palette().color(QPalette::Highlight);
    QColor tint = color;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    tint.setAlphaF(0.55F);
    painter.setPen(tint);
    tint.setAlphaF(0.14F);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
    painter.translate(m_icon->pos());
    painter.scale(m_icon->width() / 20.0, m_icon->height() / 20.0);
    drawGlyph(painter, color, m_warning);
}

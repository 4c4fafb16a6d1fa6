// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/notice.h"

#include "platform/layout_loader.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QStyle>

namespace {

const bool registered = [] {
    platform::registerLayoutWidget<QVNotice_M880>(QStringLiteral("QVNotice_M880"));
    return true;
}();

constexpr int cornerRadius = 6; // px
constexpr int leastWidth = 280; // px

} // namespace

QVNotice_M880::QVNotice_M880(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(new QLabel(this))
{
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_icon->setAccessibleName(QString());
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
    if (isVisible())
        updateIcon();
}

QSize QVNotice_M880::minimumSizeHint() const
{
    const int width = isVisible() ? this->width() : leastWidth;
    return {leastWidth, heightForWidth(qMax(width, leastWidth))};
}

// The icon theme is asked for only when there is something to say: the first look into it takes its time.
void QVNotice_M880::showEvent(QShowEvent *event)
{
    updateIcon();
    QFrame::showEvent(event);
}

void QVNotice_M880::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

void QVNotice_M880::changeEvent(QEvent *event)
{
    const bool looksDifferent =
        event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange;
    if (looksDifferent && isVisible())
        updateIcon();
    QFrame::changeEvent(event);
}

// A tint of the highlight over the window's own colour stays quiet in light and in dark palettes.
void QVNotice_M880::paintEvent(QPaintEvent *)
{
    QColor tint = m_warning ? QColor(0xe6, 0x9f, 0x00) : palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    tint.setAlphaF(0.55F);
    painter.setPen(tint);
    tint.setAlphaF(0.14F);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

void QVNotice_M880::updateIcon()
{
    const auto which = m_warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_icon->setPixmap(style()->standardIcon(which, nullptr, this).pixmap(size));
}

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/choice_slider.h"

#include "platform/layout_loader.h"
#include "platform/wheel_guard.h"
#include "ppd/ppd_model.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace {

const bool choiceSliderIsRegistered = [] {
    platform::registerLayoutWidget<QVChoiceSlider_M880>(QStringLiteral("QVChoiceSlider_M880"));
    return true;
}();

constexpr qreal railHeight = 4; // px

} // namespace

QVChoiceSlider_M880::QVChoiceSlider_M880(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    platform::guardFromWheel(this);
    connect(this, &QAbstractSlider::actionTriggered, this, &QVChoiceSlider_M880::adjustAction);
    // Without tracking, the value does not follow a held thumb; but readers of the position must find a
    // choice.
    connect(this, &QAbstractSlider::sliderMoved, this,
            [this](int position) { setSliderPosition(nearestPosition(position).value_or(value())); });
}

void QVChoiceSlider_M880::setChoices(const QVariant &choices)
{
    m_choices = choices;
    m_keywords.clear();
    for (const QVariant &choice : choices.toList()) {
        const QString keyword = choice.toMap().value(QVPPDChoiceKey).toString();
        bool isNumber = false;
        const int number = keyword.toInt(&isNumber);
        // If several choices have the same number, the one with the plain spelling counts.
        if (isNumber && (!m_keywords.contains(number) || keyword == QString::number(number)))
            m_keywords.insert(number, keyword);
    }
    setEnabled(m_allowed && !positions().isEmpty());
    QWidget::update();
}

void QVChoiceSlider_M880::setAllowed(bool allowed)
{
    m_allowed = allowed;
    setEnabled(m_allowed && !positions().isEmpty());
}

QVariant QVChoiceSlider_M880::chosenValue() const
{
    const auto keyword = m_keywords.constFind(value());
    return keyword == m_keywords.cend() ? QVariant(value()) : QVariant(*keyword);
}

void QVChoiceSlider_M880::showValue(const QVariant &value)
{
    const QScopedValueRollback showing(m_showing, true);
    setValue(value.toInt());
}

// Keys, wheel and mouse announce the requested position before the value changes; it is moved here to a
// position for which the option has a choice.
void QVChoiceSlider_M880::adjustAction(int action)
{
    const bool isStep = action != SliderMove && action != SliderNoAction;
    const auto position = isStep ? positionTowards(sliderPosition()) : nearestPosition(sliderPosition());
    setSliderPosition(position.value_or(value()));
}

void QVChoiceSlider_M880::sliderChange(SliderChange change)
{
    // Any value that is not only set for display is a choice of the user.
    if (change == SliderValueChange && !m_showing && !m_settling) {
        const QScopedValueRollback settling(m_settling, true);
        setValue(nearestPosition(value()).value_or(m_shown));
    }
    QSlider::sliderChange(change);
    if (change != SliderValueChange || m_settling)
        return;
    const bool moved = value() != m_shown;
    m_shown = value();
    if (moved && !m_showing)
        Q_EMIT valueChosen(m_shown);
}

// Styles fill the groove from its lower end, which does not show a deviation from neutral; the thumb is drawn
// by the style.
void QVChoiceSlider_M880::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    painter.save();
    drawScale(&painter, option);
    painter.restore();
    option.subControls = QStyle::SC_SliderHandle;
    option.tickPosition = tickPosition();
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

void QVChoiceSlider_M880::drawScale(QPainter *painter, const QStyleOptionSlider &option) const
{
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect thumb = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int span = groove.width() - thumb.width();
    const auto xOf = [&](int number) {
        const int offset =
            QStyle::sliderPositionFromValue(minimum(), maximum(), number, span, option.upsideDown);
        return groove.x() + offset + thumb.width() / 2.0;
    };
    const qreal middle = QRectF(thumb).center().y();

    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(isEnabled() ? 0.25F : 0.15F);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    const QRectF rail(xOf(minimum()), middle - railHeight / 2, 0, railHeight);
    painter->drawRoundedRect(QRectF(rail.topLeft(), QPointF(xOf(maximum()), rail.bottom())).normalized(),
                             railHeight / 2, railHeight / 2);
    if (isEnabled()) {
        painter->setBrush(palette().color(QPalette::Highlight));
        painter->drawRect(
            QRectF(QPointF(xOf(0), rail.top()), QPointF(xOf(sliderPosition()), rail.bottom())).normalized());
    }
    if (tickPosition() == NoTicks)
        return;
    ink.setAlphaF(isEnabled() ? 0.5F : 0.25F);
    painter->setBrush(ink);
    const qreal top = middle + thumb.height() / 2.0 + 1;
    for (const int number : positions())
        painter->drawRect(QRectF(qRound(xOf(number)), top, 1, number == 0 ? 5 : 3));
}

QList<int> QVChoiceSlider_M880::positions() const
{
    QList<int> inRange;
    std::copy_if(m_keywords.keyBegin(), m_keywords.keyEnd(), std::back_inserter(inRange),
                 [this](int number) { return number >= minimum() && number <= maximum(); });
    return inRange;
}

std::optional<int> QVChoiceSlider_M880::nearestPosition(int wanted) const
{
    const QList<int> all = positions();
    if (all.isEmpty())
        return std::nullopt;
    return *std::min_element(all.begin(), all.end(), [this, wanted](int a, int b) {
        return std::pair(std::abs(a - wanted), std::abs(a - m_shown)) <
               std::pair(std::abs(b - wanted), std::abs(b - m_shown));
    });
}

std::optional<int> QVChoiceSlider_M880::positionTowards(int wanted) const
{
    const QList<int> all = positions();
    if (all.isEmpty() || wanted == value())
        return std::nullopt;
    if (wanted > value()) {
        const auto next = std::lower_bound(all.begin(), all.end(), wanted);
        return next != all.end() ? *next : std::max(all.last(), value());
    }
    const auto beyond = std::upper_bound(all.begin(), all.end(), wanted);
    return beyond != all.begin() ? *std::prev(beyond) : std::min(all.first(), value());
}

void QVChoiceSlider_M880::wheelEvent(QWheelEvent *event)
{
    // By default Qt moves as many steps per notch as lines are scrolled.
    m_turned += event->angleDelta().y();
    for (; std::abs(m_turned) >= QWheelEvent::DefaultDeltasPerStep;
         m_turned -= m_turned > 0 ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep)
        triggerAction(m_turned > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    event->accept();
}

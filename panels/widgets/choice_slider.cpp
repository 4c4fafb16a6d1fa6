// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/choice_slider.h"

#include "platform/layout_loader.h"
#include "ppd/ppd_model.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cstdlib>

namespace {

const bool registered = [] {
    platform::registerLayoutWidget<QVChoiceSlider_M880>(QStringLiteral("QVChoiceSlider_M880"));
    return true;
}();

} // namespace

QVChoiceSlider_M880::QVChoiceSlider_M880(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    connect(this, &QAbstractSlider::actionTriggered, this, &QVChoiceSlider_M880::adjustAction);
    // Without tracking a held thumb moves and no value follows; who asks for its position must find a choice,
    // too.
    connect(this, &QAbstractSlider::sliderMoved, this,
            [this](int position) { setSliderPosition(nearestPosition(position).value_or(value())); });
}

void QVChoiceSlider_M880::setChoices(const QVariant &choices)
{
    m_choices = choices;
    m_numbers.clear();
    for (const QVariant &choice : choices.toList()) {
        bool isNumber = false;
        const int number = choice.toMap().value(QVPPDChoiceKey).toString().toInt(&isNumber);
        if (isNumber)
            m_numbers += number;
    }
    std::sort(m_numbers.begin(), m_numbers.end());
}

void QVChoiceSlider_M880::showValue(int value)
{
    const QScopedValueRollback showing(m_showing, true);
    setValue(value);
}

// Keys, wheel and mouse announce where they want the thumb before the value follows; here it is led to a
// position that the option has.
void QVChoiceSlider_M880::adjustAction(int action)
{
    const bool isStep = action != SliderMove && action != SliderNoAction;
    const auto position = isStep ? positionTowards(sliderPosition()) : nearestPosition(sliderPosition());
    setSliderPosition(position.value_or(value()));
}

void QVChoiceSlider_M880::sliderChange(SliderChange change)
{
    // Whoever sets the value other than by showing it has chosen it.
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

QList<int> QVChoiceSlider_M880::positions() const
{
    QList<int> inRange;
    std::copy_if(m_numbers.begin(), m_numbers.end(), std::back_inserter(inRange),
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

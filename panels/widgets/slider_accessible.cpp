// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/slider_accessible.h"

#include "panels/widgets/choice_slider.h"
#include "panels/widgets/signed_value_label.h"

namespace {

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *slider = qobject_cast<QVChoiceSlider_M880 *>(object);
    return slider ? new QVSliderAccessible_M880(slider) : nullptr;
}

// Qt must not call into an unloaded plug-in.
struct Installation
{
    Installation() { QAccessible::installFactory(makeAccessible); }
    ~Installation() { QAccessible::removeFactory(makeAccessible); }
};
const Installation installation;

} // namespace

QVSliderAccessible_M880::QVSliderAccessible_M880(QVChoiceSlider_M880 *slider)
    : QAccessibleWidget(slider, QAccessible::Slider)
{
}

QVChoiceSlider_M880 *QVSliderAccessible_M880::slider() const
{
    return static_cast<QVChoiceSlider_M880 *>(widget());
}

QString QVSliderAccessible_M880::text(QAccessible::Text text) const
{
    if (text == QAccessible::Value)
        return QVSignedValueLabel_M880::textForValue(slider()->value());
    return QAccessibleWidget::text(text);
}

void *QVSliderAccessible_M880::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant QVSliderAccessible_M880::currentValue() const
{
    return slider()->value();
}

void QVSliderAccessible_M880::setCurrentValue(const QVariant &value)
{
    // As for a user's action, so that receivers of the slider's actions are notified.
    slider()->setSliderDown(true);
    slider()->setSliderPosition(value.toInt());
    slider()->setSliderDown(false);
}

QVariant QVSliderAccessible_M880::maximumValue() const
{
    return slider()->maximum();
}

QVariant QVSliderAccessible_M880::minimumValue() const
{
    return slider()->minimum();
}

QVariant QVSliderAccessible_M880::minimumStepSize() const
{
    return slider()->singleStep();
}

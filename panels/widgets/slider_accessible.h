// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessibleWidget>

class QVChoiceSlider_M880;

// The accessible interface of a slider: its number, and as text the signed value shown next to it. Created by
// Qt on request and owned by it for the lifetime of the slider.
class QVSliderAccessible_M880 : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit QVSliderAccessible_M880(QVChoiceSlider_M880 *slider);

    QString text(QAccessible::Text text) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    // Has the same effect as moving the thumb.
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QVChoiceSlider_M880 *slider() const;
};

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QMap>
#include <QSlider>
#include <QVariant>

#include <optional>

class QPainter;
class QStyleOptionSlider;

// A slider over the numeric choices of a PPD option. What the user does ends on a number the option has a
// choice for; no other ever leaves the slider. A value that comes from the option is only shown, never
// corrected: one that lies beyond the range puts the thumb at the nearer end and stays as it is until the
// user moves the thumb.
class QVChoiceSlider_M880 : public QSlider
{
    Q_OBJECT
    // The option's choice dictionaries. Choices that are no whole numbers, or lie outside the range, are left
    // out; without any the thumb cannot be moved.
    Q_PROPERTY(QVariant choices READ choices WRITE setChoices)
    // Whether the slider may be used at all, choices or not.
    Q_PROPERTY(bool allowed READ isAllowed WRITE setAllowed)
    // Takes the place of the slider's own property of that name: writing shows a number, reading gives the
    // keyword of the choice at the thumb ("+1"), and only the user notifies.
    Q_PROPERTY(QVariant value READ chosenValue WRITE showValue NOTIFY valueChosen USER true)
public:
    explicit QVChoiceSlider_M880(QWidget *parent = nullptr);

    QVariant choices() const { return m_choices; }
    void setChoices(const QVariant &choices);
    bool isAllowed() const { return m_allowed; }
    void setAllowed(bool allowed);
    // A number where the option has no choice.
    QVariant chosenValue() const;
    void showValue(const QVariant &value);

Q_SIGNALS:
    void valueChosen(int value);

protected:
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;
    // One step a notch. Scrolling past it must not change it.
    void wheelEvent(QWheelEvent *event) override;

private:
    void adjustAction(int action);
    void drawScale(QPainter *painter, const QStyleOptionSlider &option) const;
    QList<int> positions() const;
    // The position nearest to `wanted`; of two equally near the one nearer to where the thumb is.
    std::optional<int> nearestPosition(int wanted) const;
    // The first position at or beyond `wanted` as seen from the thumb, else the last one on that side.
    std::optional<int> positionTowards(int wanted) const;

    QVariant m_choices;
    bool m_allowed = true;
    QMap<int, QString> m_keywords; // of the choices that are numbers
    int m_shown = 0;               // where the thumb last rested
    bool m_showing = false;
    bool m_settling = false;
    int m_turned = 0; // by the wheel, in eighths of a degree, since the last step
};

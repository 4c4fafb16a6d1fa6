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

// A slider for the numeric choices of a PPD option. The user can only select numbers for which the option has
// a choice. A value of the option is displayed without correcting it: a value outside the range puts the
// thumb at the nearer end, and is kept until the user moves the thumb.
class QVChoiceSlider_M880 : public QSlider
{
    Q_OBJECT
    // The option's choice dictionaries. Choices that are not integers, or are outside the range, are left
    // out. Without choices the thumb cannot be moved.
    Q_PROPERTY(QVariant choices READ choices WRITE setChoices)
    // Whether the slider may be used at all, independent of its choices.
    Q_PROPERTY(bool allowed READ isAllowed WRITE setAllowed)
    // Replaces the slider's property of that name: writing shows a number, reading returns the keyword of the
    // choice at the thumb ("+1"), and only changes by the user are notified.
    Q_PROPERTY(QVariant value READ chosenValue WRITE showValue NOTIFY valueChosen USER true)
public:
    explicit QVChoiceSlider_M880(QWidget *parent = nullptr);

    QVariant choices() const { return m_choices; }
    void setChoices(const QVariant &choices);
    bool isAllowed() const { return m_allowed; }
    void setAllowed(bool allowed);
    // A number if the option has no choice there.
    QVariant chosenValue() const;
    void showValue(const QVariant &value);

Q_SIGNALS:
    void valueChosen(int value);

protected:
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;
    // One step per notch. Scrolling past an unfocused slider must not change it.
    void wheelEvent(QWheelEvent *event) override;

private:
    void adjustAction(int action);
    void drawScale(QPainter *painter, const QStyleOptionSlider &option) const;
    QList<int> positions() const;
    // The position nearest to `wanted`; of two equally near ones the one closer to the thumb.
    std::optional<int> nearestPosition(int wanted) const;
    // The first position at or beyond `wanted` in the direction away from the thumb, else the last one on
    // that side.
    std::optional<int> positionTowards(int wanted) const;

    QVariant m_choices;
    bool m_allowed = true;
    QMap<int, QString> m_keywords; // by the number of the choice
    int m_shown = 0;               // last resting position of the thumb
    bool m_showing = false;
    bool m_settling = false;
    int m_turned = 0; // of the wheel, in eighths of a degree, since the last step
};

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVariantAnimation>

#include <chrono>

class QWidget;

// One view's share in an animated switch, in its superview's coordinates, where plus y is down the screen. It
// stays as wide and as high, and at the same x, as it was when the switch began.
struct ViewMove
{
    QRect startFrame;
    QRect endFrame;
    bool operator==(const ViewMove &) const = default;
};

struct ViewSwitchFrames
{
    ViewMove outgoing;
    ViewMove incoming;
    bool operator==(const ViewSwitchFrames &) const = default;
};

enum class SwitchDirection { ToAdvanced, Back };

// The way to the advanced view goes towards plus y, the way back towards minus y: each view moves by its own
// height, and both rest at y 0, which is where a view that fills its superview is.
ViewSwitchFrames framesForSwitch(const QRect &outgoing, const QRect &incoming, SwitchDirection direction);

// Slides one view out while it fades and another in, in half a second, without blocking. Owns itself: a child
// of the views' superview, gone when done, leaving the outgoing view hidden, the incoming one in place and
// neither with an effect. A switch that starts while another runs in the same superview takes its place at
// once and runs for its whole duration, from the frames that the views have then.
class ViewSwitch : public QObject
{
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds duration{500};

    static ViewSwitch *start(QWidget *outgoing, QWidget *incoming, SwitchDirection direction);
    // Ends a switch that runs in a superview at once; its views are shown and hidden as the caller wishes.
    static void cancelIn(QWidget *superview);
    // The one that runs in a superview, or null.
    static ViewSwitch *runningIn(const QWidget *superview);
    ~ViewSwitch() override;

    const ViewSwitchFrames &frames() const { return m_frames; }
    // How far it has come, eased, from 0 to 1.
    qreal progress() const;

private:
    ViewSwitch(QWidget *outgoing, QWidget *incoming, const ViewSwitchFrames &frames);
    void showProgress();
    void finish();
    void letGo();

    QPointer<QWidget> m_outgoing;
    QPointer<QWidget> m_incoming;
    ViewSwitchFrames m_frames;
    QVariantAnimation m_clock;
};

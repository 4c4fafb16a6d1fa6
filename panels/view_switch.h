// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVariantAnimation>

#include <chrono>

class QWidget;

// The movement of one view during an animated switch, in the coordinates of its superview, where plus y is
// down. The view keeps the size and the x position that it had at the start of the switch.
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

// Switching to the advanced view moves towards plus y, switching back towards minus y. Each view moves by its
// own height and ends at y 0, which is the position of a view that fills its superview.
ViewSwitchFrames framesForSwitch(const QRect &outgoing, const QRect &incoming, SwitchDirection direction);

// Slides one view out while it fades, and another view in, within half a second and without blocking. A child
// of the views' superview that deletes itself when done, leaving the outgoing view hidden, the incoming view
// in place, and neither with an effect. A new switch in the same superview replaces a running one at once and
// runs for its full duration, starting from the current frames of the views.
class ViewSwitch : public QObject
{
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds duration{500};

    static ViewSwitch *start(QWidget *outgoing, QWidget *incoming, SwitchDirection direction);
    // Ends a running switch in a superview at once. The caller shows and hides the views.
    static void cancelIn(QWidget *superview);
    // The running switch of a superview, or null.
    static ViewSwitch *runningIn(const QWidget *superview);
    ~ViewSwitch() override;

    const ViewSwitchFrames &frames() const { return m_frames; }
    // The eased progress, from 0 to 1.
    qreal progress() const;

private:
    ViewSwitch(QWidget *outgoing, QWidget *incoming, const ViewSwitchFrames &frames);
    void showProgress();
    void finish();
    void releaseViews();

    QPointer<QWidget> m_outgoing;
    QPointer<QWidget> m_incoming;
    ViewSwitchFrames m_frames;
    QVariantAnimation m_clock;
};

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/background.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace host {

// Keeps a dialog responsive while code on its thread waits: the dialog is painted, and can be moved and
// closed. Input reaches only the open parts, such as the button to stop waiting; the Tab key moves between
// them. Escape and the window's close button also stop the wait. Focus-out events are delivered when the wait
// is over, since fields commit their text then. If an open part has the focus at that time, the focus returns
// to the widget that had it before. Lives on the dialog's thread, possibly longer than the dialog while
// abandoned work is running.
class DialogWaiter : public QObject, public platform::Waiter
{
    Q_OBJECT
public:
    explicit DialogWaiter(QWidget *dialog);
    ~DialogWaiter() override;

    // The parts of the dialog that accept input during a wait, such as the button to stop waiting.
    void setOpenParts(const QList<QWidget *> &parts) { m_openParts = parts; }
    // An activity comprises all waits for one action of the user; stopping applies to all of them. Activities
    // nest; the outermost counts.
    void beginActivity();
    void endActivity();

    bool isGivenUp() const override { return m_givenUp; }
    bool wait(const std::function<bool()> &ended) override;
    void wake() override;

public Q_SLOTS:
    void giveUp();

Q_SIGNALS:
    // Emitted once per activity, when the first of its calls has taken noticeably long.
    void waitingNoticed();
    // The user has pressed Return or Enter outside of the open parts.
    void acceptWanted();
    // The user has stopped waiting with Escape.
    void escaped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Left
    {
        QPointer<QWidget> widget;
        Qt::FocusReason reason;
    };
    bool isOpen(const QObject *object) const;
    void step(bool forward);
    void settleLater();
    void settleFocus();

    QPointer<QWidget> m_dialog;
    QList<QWidget *> m_openParts; // the dialog's
    QList<Left> m_left;           // widgets that lost the focus and have not been notified yet
    int m_activities = 0;
    int m_depth = 0; // number of nested waits
    bool m_givenUp = false;
    bool m_noticed = false;
    QElapsedTimer m_sinceBegin; // of the activity
};

} // namespace host

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

// Keeps a dialog alive while something on its thread waits: it paints, scrolls its own way, can be moved and
// closed. Input reaches nothing of the dialog but the widgets that give up, and the Tab key leads there;
// Escape and the window's close button give up as well. What loses the focus meanwhile hears of it when the
// waiting is over, since fields commit what was typed then; where the focus is with what gave up, it goes
// back. Belongs to the dialog's thread, also while work that was given up is under way.
class DialogWaiter : public QObject, public platform::Waiter
{
    Q_OBJECT
public:
    explicit DialogWaiter(QWidget *dialog);
    ~DialogWaiter() override;

    // The parts of the dialog that input still reaches while it waits, such as the button to give up.
    void setOpenParts(const QList<QWidget *> &parts) { m_openParts = parts; }
    // An activity is everything that one wish of the user waits for. Giving up lasts until it is over. They
    // nest; the outermost counts.
    void beginActivity();
    void endActivity();

    bool isGivenUp() const override { return m_givenUp; }
    bool wait(const std::function<bool()> &ended) override;
    void wake() override;

public Q_SLOTS:
    void giveUp();

Q_SIGNALS:
    // Once an activity, when the first of its calls has taken longer than a person notices.
    void waitingNoticed();
    // The user has pressed Return or Enter in a part that input does not reach.
    void acceptWanted();
    // The user has given up with Escape.
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
    QList<Left> m_left;           // have lost the focus, and were not told yet
    int m_activities = 0;
    int m_depth = 0; // of nested waits
    bool m_givenUp = false;
    bool m_noticed = false;
    QElapsedTimer m_sinceBegin; // of the activity
};

} // namespace host

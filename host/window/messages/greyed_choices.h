// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/forced_choice.h"

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace host {

class DialogSession;
class MessageQueue;

// Lets the user select a greyed item of a choice list on the pages of the host and of panels: a question
// describes the required changes, which are made when the user agrees. The queue is borrowed.
class GreyedChoices : public QObject
{
    Q_OBJECT
public:
    // `session` returns the current session; null if there is none.
    GreyedChoices(MessageQueue *messages, std::function<DialogSession *()> session, QObject *parent);

Q_SIGNALS:
    // A greyed choice and the required changes are about to be applied.
    void aboutToChoose();
    void chosen();

private:
    void watch(QWidget *now);
    void offer(const QString &keyword, const QString &choice);
    void ask(const ForcedChoice &forced);
    void take(const ForcedChoice &offered);

    MessageQueue *m_messages;
    std::function<DialogSession *()> m_session;
};

} // namespace host

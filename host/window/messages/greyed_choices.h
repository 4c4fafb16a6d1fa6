// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/forced_choice.h"

#include <QObject>
#include <QString>

#include <optional>

class QWidget;

namespace host {

class DialogSession;
class MessageBar;

// Lets the user pick what is greyed in a list of choices, on pages of the host and of panels: the message bar
// says what would have to change, and does it when the user agrees. A child of
// its window; the bar is borrowed.
class GreyedChoices : public QObject
{
    Q_OBJECT
public:
    GreyedChoices(MessageBar *bar, QWidget *window);
    // Borrowed; null while there is none.
    void setSession(DialogSession *session) { m_session = session; }

    // Takes the answer given in the message bar; false when the bar asked something else.
    bool answer(int index);

private:
    void watch(QWidget *now);
    void offer(const QString &keyword, const QString &choice);
    void ask(const ForcedChoice &forced);

    MessageBar *m_bar;
    QWidget *m_window;
    DialogSession *m_session = nullptr;
    std::optional<ForcedChoice> m_offer; // what the bar asks about
    QString m_question;                  // how it stands there
};

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/forced_choice.h"

#include <QObject>
#include <QString>

#include <optional>

class QWidget;

namespace host {

class PrintWindow;

// Lets the user pick what is greyed in a list of choices, on pages of the host and of panels: the message bar
// says what would have to change, and does it when the user agrees. A child of its window.
class GreyedChoices : public QObject
{
    Q_OBJECT
public:
    explicit GreyedChoices(PrintWindow *window);

    // Takes the answer given in the message bar; false when the bar asked something else.
    bool answer(int index);

private:
    void watch(QWidget *now);
    void offer(const QString &keyword, const QString &choice);
    void ask(const ForcedChoice &forced);

    PrintWindow *m_window;
    std::optional<ForcedChoice> m_offer; // what the bar asks about
    QString m_question;                  // how it stands there
};

} // namespace host

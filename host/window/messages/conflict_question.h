// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"
#include "host/window/messages/message_bar.h"

#include <optional>

namespace host {

class DialogSession;

// The question about settings that cannot be used together: follow a suggestion, print all the same, or keep
// them. A value.
struct ConflictQuestion
{
    enum class Purpose {
        Review,   // the user has changed something
        Print,    // the user wants to print, and may all the same
        Continue, // the same where an application prints
    };
    enum class Answer { Keep, Apply, PrintAnyway };

    Message message;
    std::optional<Resolution> suggestion; // null where there is none
    QList<Answer> answers;                // in the order of message.answers

    // What an answer of the message bar means; -1 is Keep.
    Answer meaningOf(int answer) const { return answers.value(answer, Answer::Keep); }
};

// Asks about the conflicts of a session. Null where there are none.
std::optional<ConflictQuestion> conflictQuestion(const DialogSession &session,
                                                 ConflictQuestion::Purpose purpose);

} // namespace host

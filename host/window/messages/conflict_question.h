// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"
#include "host/window/messages/message_bar.h"

#include <optional>

namespace host {

class DialogSession;

// The question about settings that cannot be used together: apply a suggestion, print anyway, or keep the
// settings. A value.
struct ConflictQuestion
{
    enum class Purpose {
        Review,   // the user has changed a setting
        Print,    // the user wants to print, and may do so anyway
        Continue, // the same if an application prints
    };
    enum class Answer { Keep, Apply, PrintAnyway };

    Message message;
    std::optional<Resolution> suggestion; // null if there is none
    QList<Answer> answers;                // in the order of message.answers

    // The meaning of an answer of the message bar; -1 is Keep.
    Answer meaningOf(int answer) const { return answers.value(answer, Answer::Keep); }
};

// Creates the question about the conflicts of a session. Null if there are none.
std::optional<ConflictQuestion> conflictQuestion(const DialogSession &session,
                                                 ConflictQuestion::Purpose purpose);

} // namespace host

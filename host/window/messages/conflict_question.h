// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

class DialogSession;
class MessageBar;

// Asks in a message bar what to do about settings that cannot be used together: follow a suggestion, keep
// them, or print all the same. The bar is borrowed, and shows other things, too.
class ConflictQuestion
{
    Q_DECLARE_TR_FUNCTIONS(host::ConflictQuestion)
public:
    enum class Answer { NotAsked, Keep, Apply, PrintAnyway };

    // The dialog makes settings for an application, which prints.
    ConflictQuestion(MessageBar *bar, bool settingsOnly);

    // Asks where there are conflicts, and where there are none takes away what was asked; what stands there
    // already is not read out again. `toPrint` offers to print all the same, until there are none. True while
    // there are conflicts.
    bool ask(const DialogSession &session, bool toPrint);
    bool isAsked() const { return m_isAsked; }
    // The bar is wanted for something else.
    void drop() { m_isAsked = false; }
    // What the answer of the bar means. It is asked no more then.
    Answer take(int index);
    // What was suggested last, where something was.
    const std::optional<Resolution> &suggestion() const { return m_suggestion; }

private:
    QStringList suggest(const DialogSession &session);
    QStringList warnings(const QList<Conflict> &conflicts, const DialogSession &session) const;
    void show(const QStringList &lines, const QStringList &answers);

    MessageBar *m_bar;
    bool m_settingsOnly;
    bool m_isAsked = false;
    int m_printAnyway = -1; // which answer it is; -1 where it is none
    std::optional<Resolution> m_suggestion;
};

} // namespace host

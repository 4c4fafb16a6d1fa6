// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/conflict_question.h"

#include "host/session/dialog_session.h"
#include "host/session/protection_checks.h"
#include "host/window/messages/message_bar.h"

#include <utility>

namespace host {

namespace {

constexpr int firstAnswer = 0; // follows the suggestion, where there is one

QStringList described(const QList<Conflict> &conflicts)
{
    QStringList lines;
    for (const Conflict &conflict : conflicts) {
        QStringList sides;
        for (const OptionChoice &side : conflict.sides)
            sides.append(side.text());
        lines.append(QStringLiteral("•  ") + sides.join(QStringLiteral("  –  ")));
    }
    return lines;
}

} // namespace

ConflictQuestion::ConflictQuestion(MessageBar *bar, bool settingsOnly)
    : m_bar(bar), m_settingsOnly(settingsOnly)
{
}

bool ConflictQuestion::ask(const DialogSession &session, bool toPrint)
{
    const QList<Conflict> conflicts = session.conflicts();
    const bool couldPrint = std::exchange(m_printAnyway, -1) >= 0;
    if (conflicts.isEmpty()) {
        if (std::exchange(m_isAsked, false))
            m_bar->hide();
        return false;
    }
    QStringList lines = described(conflicts) + suggest(session);
    QStringList answers;
    if (m_suggestion)
        answers.append(tr("App&ly Suggestion"));
    if (toPrint || couldPrint) {
        lines += warnings(conflicts, session);
        m_printAnyway = static_cast<int>(answers.size());
        answers.append(m_settingsOnly ? tr("Use An&yway") : tr("Print An&yway"));
    }
    answers.append(tr("Keep and Re&view"));
    show(lines, answers);
    return true;
}

// What is told of a way out.
QStringList ConflictQuestion::suggest(const DialogSession &session)
{
    QStringList lines;
    QString givenUp;
    m_suggestion = session.proposal(&givenUp);
    if (!givenUp.isNull())
        lines.append(
            tr("No way out was found that keeps “%1”: change one of the settings yourself.").arg(givenUp));
    if (m_suggestion) {
        QStringList changes;
        for (const OptionChoice &change : *m_suggestion)
            changes.append(change.text());
        lines.append(tr("Suggestion: %1").arg(changes.join(QStringLiteral(", "))));
    }
    return lines;
}

// Of what printing all the same may cost.
QStringList ConflictQuestion::warnings(const QList<Conflict> &conflicts, const DialogSession &session) const
{
    QStringList lines;
    for (const QString &protection : protectionAtRisk(conflicts, session.protection()))
        lines.append(tr("“%1” protects your document. If you print anyway, the printer may print without it.")
                         .arg(protection));
    return lines;
}

void ConflictQuestion::show(const QStringList &lines, const QStringList &answers)
{
    const bool isKnown = std::exchange(m_isAsked, true) && m_bar->isShowing() &&
                         m_bar->buttons().size() == answers.size() &&
                         m_bar->text().endsWith(lines.join(QLatin1Char('\n')));
    if (!isKnown)
        m_bar->showMessage(MessageBar::Kind::Question, tr("These settings cannot be used together"), lines,
                           answers);
}

ConflictQuestion::Answer ConflictQuestion::take(int index)
{
    const int printAnyway = std::exchange(m_printAnyway, -1);
    if (!std::exchange(m_isAsked, false))
        return Answer::NotAsked;
    if (index >= 0 && index == printAnyway)
        return Answer::PrintAnyway;
    return m_suggestion && index == firstAnswer ? Answer::Apply : Answer::Keep;
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/conflict_question.h"

#include "host/policy/policy.h"
#include "host/session/dialog_session.h"
#include "host/session/protection_checks.h"

#include <QCoreApplication>

namespace host {

namespace {

struct ConflictText
{
    Q_DECLARE_TR_FUNCTIONS(host::ConflictQuestion)
};

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

// The changes of a suggestion, or why there is none.
QStringList suggestionLines(const std::optional<Resolution> &suggestion, const QString &givenUp)
{
    if (!givenUp.isNull())
        return {ConflictText::tr("No resolution keeps “%1”; change one of the settings.").arg(givenUp)};
    if (!suggestion)
        return {};
    QStringList changes;
    for (const OptionChoice &change : *suggestion)
        changes.append(change.text());
    return {ConflictText::tr("Suggestion: %1").arg(changes.join(QStringLiteral(", ")))};
}

// The possible effects on the job if it is printed nevertheless.
QStringList warnings(const QList<Conflict> &conflicts, const DialogSession &session)
{
    QStringList lines, locks;
    for (const Conflict &conflict : conflicts) {
        for (const OptionChoice &side : conflict.sides) {
            const QString locked = session.rule().lockedChoice(session.ppd(), side.option);
            if (!locked.isNull() && locked == side.choice && !locks.contains(side.text()))
                locks.append(side.text());
        }
    }
    for (const QString &lock : std::as_const(locks))
        lines.append(ConflictText::tr("“%1” cannot be changed. If you print anyway, the printer may print "
                                      "without it.")
                         .arg(lock));
    if (!locks.isEmpty())
        lines.append(Policy::current().attribution());
    for (const QString &protection : protectionAtRisk(conflicts, session.protection())) {
        if (locks.contains(protection))
            continue;
        lines.append(ConflictText::tr("“%1” protects your document. If you print anyway, the printer may "
                                      "print without it.")
                         .arg(protection));
    }
    return lines;
}

} // namespace

std::optional<ConflictQuestion> conflictQuestion(const DialogSession &session,
                                                 ConflictQuestion::Purpose purpose)
{
    const QList<Conflict> conflicts = session.conflicts();
    if (conflicts.isEmpty())
        return std::nullopt;
    ConflictQuestion question;
    question.message.kind = StatusGlyph::Kind::Question;
    question.message.title = ConflictText::tr("These settings cannot be used together");
    QString givenUp;
    question.suggestion = session.proposal(&givenUp);
    question.message.lines = described(conflicts) + suggestionLines(question.suggestion, givenUp);
    const auto add = [&question](ConflictQuestion::Answer answer, const QString &text) {
        question.answers.append(answer);
        question.message.answers.append(text);
    };
    if (question.suggestion)
        add(ConflictQuestion::Answer::Apply, ConflictText::tr("App&ly Suggestion"));
    if (purpose != ConflictQuestion::Purpose::Review) {
        question.message.lines += warnings(conflicts, session);
        add(ConflictQuestion::Answer::PrintAnyway, purpose == ConflictQuestion::Purpose::Continue
                                                       ? ConflictText::tr("Use An&yway")
                                                       : ConflictText::tr("Print An&yway"));
    }
    add(ConflictQuestion::Answer::Keep, ConflictText::tr("Keep and Re&view"));
    return question;
}

} // namespace host

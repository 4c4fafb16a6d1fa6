// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/forced_choice.h"

#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/protection_checks.h"

#include <algorithm>
#include <optional>

namespace host {

namespace {

bool changes(const Resolution &resolution, const QString &keyword)
{
    return std::any_of(resolution.begin(), resolution.end(),
                       [&](const OptionChoice &change) { return change.option == keyword; });
}

// The locked options that a resolution would change, with their current choices.
QList<OptionChoice> locksAgainst(const DialogSession &session, const Resolution &resolution)
{
    QList<OptionChoice> locks;
    for (const OptionChoice &change : resolution) {
        if (!session.locks().allows(change.option, change.choice))
            locks.append(session.ppd()->described(change.option, session.ppd()->markedChoice(change.option)));
    }
    return locks;
}

// A resolution that keeps the marked choice of the option, all locked options, and protecting choices if
// possible. Empty if there is none; `locks` is then set to the locked options that prevent it.
Resolution resolutionKeeping(const DialogSession &session, const QString &keyword, QList<OptionChoice> *locks)
{
    const auto protecting = protectingResolution(*session.ppd(), session.protection(), keyword, nullptr);
    for (const auto &resolution : {protecting, session.ppd()->resolution(keyword)}) {
        if (!resolution || changes(*resolution, keyword))
            continue;
        *locks = locksAgainst(session, *resolution);
        if (locks->isEmpty())
            return *resolution;
    }
    return {};
}

} // namespace

ForcedChoice forcedChoice(DialogSession *session, const QString &keyword, const QString &choice)
{
    session->save(); // includes pending changes of panels
    PpdDocument *ppd = session->ppd();
    ForcedChoice forced;
    forced.wanted = ppd->described(keyword, choice);
    forced.locks = locksAgainst(*session, {forced.wanted});
    forced.obstacle = ppd->forbiddenChoices(keyword).value(choice);
    if (session->general().layout.isBooklet() && choiceNotForBooklet(*session, keyword) == choice) {
        forced.obstacle = bookletChoice(true);
        forced.before = {forced.obstacle};
        forced.changes = {bookletChoice(false)};
        return forced;
    }
    if (forced.obstacle.option.isEmpty() || !forced.locks.isEmpty())
        return forced;
    const QString now = ppd->markedChoice(keyword);
    if (!ppd->mark(keyword, choice))
        return forced;
    forced.changes = resolutionKeeping(*session, keyword, &forced.locks);
    ppd->mark(keyword, now);
    if (forced.changes.isEmpty() && forced.locks.isEmpty() &&
        !session->locks().allows(forced.obstacle.option, {}))
        forced.locks = {forced.obstacle};
    for (const OptionChoice &change : std::as_const(forced.changes)) {
        const OptionChoice before = ppd->described(change.option, ppd->markedChoice(change.option));
        forced.before.append(before);
        const Protection &protection = session->protection();
        if (protection.protects(before.option, before.choice) &&
            !protection.protects(change.option, change.choice))
            forced.givenUp.append(before.text());
    }
    return forced;
}

void choose(DialogSession *session, const ForcedChoice &forced)
{
    session->markChoice(forced.wanted.option, forced.wanted.choice);
    Resolution changes = forced.changes;
    if (changes.removeAll(bookletChoice(false)) > 0)
        (void)session->setGeneral(bookletChoice(false).option, bookletChoice(false).choice);
    session->apply(changes);
}

} // namespace host

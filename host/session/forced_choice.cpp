// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/forced_choice.h"

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

// With the choice marked: a way that keeps it, and what protects if that can be.
std::optional<Resolution> wayThatKeeps(const DialogSession &session, const QString &keyword)
{
    const auto gentle = protectingResolution(*session.ppd(), session.protection(), keyword, nullptr);
    if (gentle && !changes(*gentle, keyword))
        return gentle;
    const auto any = session.ppd()->resolution(keyword);
    return any && !changes(*any, keyword) ? any : std::nullopt;
}

} // namespace

ForcedChoice forcedChoice(DialogSession *session, const QString &keyword, const QString &choice)
{
    session->save(); // what panels have pending counts
    PpdDocument *ppd = session->ppd();
    ForcedChoice forced;
    forced.wanted = ppd->described(keyword, choice);
    forced.obstacle = ppd->forbiddenChoices(keyword).value(choice);
    if (forced.obstacle.option.isEmpty())
        return forced;
    const QString now = ppd->markedChoice(keyword);
    if (!ppd->mark(keyword, choice))
        return forced;
    forced.changes = wayThatKeeps(*session, keyword).value_or(Resolution());
    ppd->mark(keyword, now);
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
    session->apply(forced.changes);
}

} // namespace host

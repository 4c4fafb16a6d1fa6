// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/change_notices.h"
#include "host/session/chosen_settings.h"
#include "platform/printing_manager.h"

#include <QMap>
#include <QObject>

#include <utility>

namespace host {

class SessionPanels;

// What panels do to PPD options and print settings, from the moment when they announce it to the one when all
// calls have returned and it can be seen what came of it. Part of a session, as is all that it is given;
// `ppd` may be null.
class PanelChanges : public QObject
{
    Q_OBJECT
public:
    PanelChanges(const SessionPanels *panels, PpdDocument *ppd, platform::PrintSettings *settings)
        : m_panels(panels), m_ppd(ppd), m_settings(settings)
    {
    }

    // An option has been set on a panel: whatever follows from that does so before control returns to the
    // event loop.
    void noteSetting(int panel, const QString &key);
    // A panel is about to change an option, or a print setting.
    void announce(const QString &keyword);

    struct Outcome
    {
        QStringList saved;            // keywords
        QList<ChosenSetting> chosen;  // by the user
        QList<UnaskedChange> unasked; // of PPD options
    };
    // What came of the changes announced since the last call. A panel that saves itself before it was
    // restored writes defaults for what it has never read: only what it has set on purpose counts, the rest
    // is put back.
    Outcome settle();

private:
    struct Announced
    {
        QString keyword;
        QVariant before;         // its value when it was announced first
        bool byUser = true;      // false when no save of the user's panel asked for it
        OptionChoice cause = {}; // what was chosen elsewhere just before; empty when nothing was
    };
    QVariant currentValue(const QString &keyword) const;
    void putBack(const QString &keyword, const QVariant &value);
    OptionChoice causeBesides(int owner) const;

    const SessionPanels *m_panels;
    PpdDocument *m_ppd;
    platform::PrintSettings *m_settings;
    QList<Announced> m_announced;                 // each keyword once
    QMap<int, std::pair<int, QString>> m_justSet; // by panel: how many came before it, and the option
    int m_settingCount = 0;
};

} // namespace host

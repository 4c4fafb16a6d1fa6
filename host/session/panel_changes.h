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

// Tracks changes of panels to PPD options and print settings, from their announcement until all calls have
// returned and the result is known. Part of a session, as are all its arguments; `ppd` may be null.
class PanelChanges : public QObject
{
    Q_OBJECT
public:
    PanelChanges(const SessionPanels *panels, PpdDocument *ppd, platform::PrintSettings *settings)
        : m_panels(panels), m_ppd(ppd), m_settings(settings)
    {
    }

    // Call when an option was set on a panel. Changes that other panels announce before control returns to
    // the event loop are attributed to it.
    void noteSetting(int panel, const QString &key);
    // Call when a panel is about to change an option or a print setting.
    void announce(const QString &keyword);

    struct Outcome
    {
        QStringList saved;                    // keywords
        QList<ChosenSetting> chosen;          // by the user
        QList<UnrequestedChange> unrequested; // of PPD options
    };
    // The outcome of the changes that were announced since the last call. A panel that saves itself before it
    // was restored writes defaults for options that it has not read: only options that it set explicitly are
    // kept, the others are reset.
    Outcome settle();

private:
    struct Announced
    {
        QString keyword;
        QVariant before;         // the value at its first announcement
        bool byUser = true;      // whether the panel that handles the keyword was being saved
        OptionChoice cause = {}; // the preceding choice on another panel; empty if there was none
    };
    QVariant currentValue(const QString &keyword) const;
    void putBack(const QString &keyword, const QVariant &value);
    OptionChoice causeFromOtherPanel(int owner) const;

    const SessionPanels *m_panels;
    PpdDocument *m_ppd;
    platform::PrintSettings *m_settings;
    QList<Announced> m_announced; // once for each keyword
    // by panel: the number of preceding announcements, and the option
    QMap<int, std::pair<int, QString>> m_justSet;
    int m_settingCount = 0;
};

} // namespace host

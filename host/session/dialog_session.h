// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/policy/locks.h"
#include "host/policy/policy.h"
#include "host/printing/destination.h"
#include "host/printing/ppd_document.h"
#include "host/session/chosen_settings.h"
#include "host/session/general_settings.h"
#include "host/session/panel_changes.h"
#include "host/session/panel_host.h"
#include "host/session/secret_settings.h"
#include "host/session/session_panels.h"
#include "host/session/summary_section.h"
#include "platform/print_dialog.h"

#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

namespace host {

class Extensions;

// One dialog for one printer: its PPD, the job's settings and the plug-in's panels, and their host. Works
// without a window; a window, or a batch run, drives it. A panel is restored once, before it is first shown;
// only restored panels are saved. Owns everything it hands out.
class DialogSession : public QObject
{
    Q_OBJECT
public:
    // `ppd` may be null. Marks what the destination's options say, and the policy for its queue.
    DialogSession(const Destination &destination, std::unique_ptr<PpdDocument> ppd);
    ~DialogSession() override;

    // Makes the panels of the extensions that serve the printer; problems become notices.
    void loadPanels(Extensions &extensions);
    void adoptPanels(platform::PrintDialogPanels panels);
    const Protection &protection() const { return m_protection; }
    void setProtection(const Protection &protection);

    const Destination &destination() const { return m_destination; }
    PpdDocument *ppd() const { return m_ppd.get(); }
    // What the administrator has laid down for this printer.
    const Policy::Rule &rule() const { return m_rule; }
    // What is fixed there. No setter of this class goes against it.
    const Locks &locks() const { return m_locks; }
    // What of the user's own defaults or of the preset was left out for it; no error when nothing was.
    const PrintError &brokenLock() const { return m_brokenLock; }
    bool isPanelLocked(int index) const { return m_rule.locksPanel(panel(index)->panelKind()); }
    GeneralSettings &general() { return m_general; }
    const GeneralSettings &general() const { return m_general; }
    const GeneralSettings &startingGeneral() const { return m_startingGeneral; } // before the first choice
    int panelCount() const { return m_panels.count(); }
    platform::PrintDialogPanel *panel(int index) const { return m_panels.at(index).panel.get(); }
    QStringList panelKeywords(int index) const { return m_panels.at(index).keywords; }
    bool isRestored(int index) const { return m_panels.at(index).restored; }
    // The panel that handles a PPD option, or -1.
    int panelOfKeyword(const QString &keyword) const { return m_panels.ofKeyword(keyword); }
    // Whether the value of an option, a panel's key or a job option is a password or a code. It is then
    // neither shown nor stored, nor told to another program.
    bool isSecret(const QString &key) const;
    // The panel that answers a key or key path other than the PPD options, or -1.
    int panelOfSetting(const QString &keyPath) const { return m_panels.ofSetting(keyPath); }
    // The keys and key paths other than PPD options that a panel can be set by.
    QStringList settableKeysOf(int panel) const { return m_panels.settableKeysOf(panel); }
    // Makes a panel ready to be shown or set: restores it, once, after those before it have announced how
    // their options stand. These are not restored, since a panel may ask a device that is switched off.
    void prepare(int index);
    // Saves every restored panel.
    void save();
    // Options of the PPD that neither the general pane nor a panel shows, without those for installed units.
    QStringList otherKeywords() const;

    // Marks a choice for the user; panels that show the option follow. False when the PPD does not have it,
    // or the policy has fixed another one.
    bool markChoice(const QString &keyword, const QString &choice, bool isSecret = false);
    // What has been chosen so far: here, in panels that were saved, and by others who note it.
    const ChosenSettings &chosen() const { return m_chosen; }
    void noteChosen(ChosenSetting setting);
    QList<Conflict> conflicts() const;
    // libcups's way out of the conflicts that leaves the user's last change as it is, where there is one; but
    // none that gives up what protects the user. Where every way does, `givenUp` (may be null) says what.
    std::optional<Resolution> proposal(QString *givenUp = nullptr) const;
    void apply(const Resolution &resolution);
    // What changed without the user having asked for it, and what went wrong, since the last call. Localised.
    QStringList takeNotices();
    void addNotice(const QString &notice) { m_notices.append(notice); }

    // What is missing for the protection that has been chosen, in words: a code without private printing, or
    // the reverse. Null when nothing is.
    QString protectionGap() const;
    // The code that is missing for a choice, as a password is for private printing; null when none is.
    const Protection::Secret *missingCode() const;
    // Whether the settings that the session began with protect the user in a way that the printer lacks.
    bool lacksProtection() const;

    // Panels that have not been restored are first told how their options stand.
    QList<SummarySection> summary();
    // What is sent with the job; see host/session/job_options.h.
    QList<JobOption> jobOptions() const;

    // The job's settings beside the PPD, and what panels know of the session.
    const platform::PrintSettings &printSettings() const { return m_host.settings(); }
    PanelHost *panelHost() { return &m_host; }

Q_SIGNALS:
    // New notices can be taken, or choices have changed behind a shown pane.
    void changed();
    // Emitted directly: paint now, since the next thing blocks. Pairs may nest.
    void blockingBegan(const QString &what);
    void blockingEnded();

private:
    friend class StateKeeper; // sets what no front end may

    void panelKeyChanged(int panel, const QString &key);
    void keepLocked(int panel, const QString &key);
    void leaveOutForbidden();
    void tellForbidden(const PrintError &refusal);
    void lockPages();
    void savePanel(int index);
    void noteAnnounced(const QString &keyword);
    // Works through the changes that panels have announced, once their calls have returned.
    void settle();
    void settleLater();
    void tellUnknownDefaults();

    Policy::Rule m_rule;
    Destination m_destination;
    std::unique_ptr<PpdDocument> m_ppd;
    Locks m_locks;
    PrintError m_brokenLock;
    PanelHost m_host;
    GeneralSettings m_general;
    GeneralSettings m_startingGeneral;
    Protection m_protection;
    mutable std::optional<SecretSettings> m_secrets; // found out when first asked for
    ChosenSettings m_chosen;
    QStringList m_notices;
    QSet<QString> m_savedKeywords;
    QString m_lastUserKeyword;
    bool m_settleQueued = false;
    SessionPanels m_panels;
    PanelChanges m_changes;
};

} // namespace host

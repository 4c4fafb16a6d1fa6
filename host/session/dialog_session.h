// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/policy/locks.h"
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

#include <functional>
#include <memory>
#include <optional>

namespace host {

class Extensions;
struct SessionState;

// One dialog for one printer: its PPD, the job's settings, and the plug-in's panels with their host. Has no
// user interface; it is driven by a window or a batch run. A panel is restored once, before it is first
// shown; only restored panels are saved. Owns all objects that it returns.
class DialogSession : public QObject
{
    Q_OBJECT
public:
    // `ppd` may be null. Marks the choices of the destination's options, and applies the policy.
    DialogSession(const Destination &destination, std::unique_ptr<PpdDocument> ppd);
    ~DialogSession() override;

    // Creates the panels of all extensions that support the printer; problems become notices.
    void loadPanels(Extensions &extensions);
    // The same with panels that a function creates for the host. Call one of the two, once.
    void loadPanels(const std::function<platform::PrintDialogPanels(platform::PrintDialogHost *)> &create);
    const Protection &protection() const { return m_protection; }
    void setProtection(const Protection &protection);

    const Destination &destination() const { return m_destination; }
    PpdDocument *ppd() const { return m_ppd.get(); }
    const Policy::Rule &rule() const { return m_rule; } // of the administrator
    const Locks &locks() const { return m_locks; }      // no setter of this class violates them
    const PrintError &policyViolation() const { return m_policyViolation; } // of an ignored default or preset
    const SessionPanels &panels() const { return m_panels; }
    bool isPanelLocked(int index) const { return m_rule.locksPanel(m_panels.panel(index)->panelKind()); }
    const GeneralSettings &general() const { return m_general; }
    const GeneralSettings &startingGeneral() const { return m_startingGeneral; } // before the first choice
    bool isSecret(const QString &key) const; // a password or a code: never shown, stored or passed on
    // Restores a panel once, before it is shown or set. The panels before it announce the choices of their
    // options but are not restored, since a panel may query a device that is switched off.
    void prepare(int index);
    void save();                       // all restored panels
    QStringList otherKeywords() const; // PPD options that no other page shows, without installed units
    // Marks a choice of the user; panels with the option are updated. False if the PPD does not have the
    // choice, or the policy has fixed another one.
    bool markChoice(const QString &keyword, const QString &choice, bool isSecret = false);
    // Part of choose(). An error, without a change, if the value is not valid or the policy forbids it.
    PrintError setGeneral(const QString &name, const QString &value);
    void setOfferedParts(bool currentPage, bool selection);   // by an application
    const ChosenSettings &chosen() const { return m_chosen; } // here, in saved panels, and by callers
    void noteChosen(ChosenSetting setting);
    QList<Conflict> conflicts() const;
    // libcups's resolution of the conflicts, which keeps the user's last change if possible. None gives up a
    // protecting choice: if every resolution would, `givenUp`, which may be null, is set to the protection.
    std::optional<Resolution> proposal(QString *givenUp = nullptr) const;
    void apply(const Resolution &resolution);
    QStringList takeNotices(); // unrequested changes, and errors, since the last call; localised
    void addNotice(const QString &notice);
    QList<SummarySection> summary(); // first announces the choices of options to panels
    QList<JobOption> jobOptions(const GeneralSettings *general = nullptr) const; // null: the session's own
    SessionState state() const; // includes changes that panels have not saved
    // Sets all differences between two states to their values in `to`, also on the panels, without notices.
    // Locked options keep their choices. General settings are not checked: they were in force before.
    void restoreTo(const SessionState &from, const SessionState &to);

Q_SIGNALS:
    void changed(); // there are new notices, or choices have changed outside of the shown page
    // Emitted directly, so that a slot can paint before a panel blocks the thread. Calls may nest.
    void blockingBegan(const QString &what);
    void blockingEnded();

private:
    bool mark(ChosenSetting *setting);
    bool restoreMarks(const SessionState &from, const SessionState &to);
    void panelKeyChanged(int panel, const QString &key);
    void keepLocked(int panel, const QString &key);
    void leaveOutForbidden();
    void lockPages();
    void noteAnnounced(const QString &keyword);
    void settle(); // processes the changes that panels have announced, after their calls have returned

    Policy::Rule m_rule;
    Destination m_destination;
    std::unique_ptr<PpdDocument> m_ppd;
    Locks m_locks;
    PrintError m_policyViolation;
    PanelHost m_host;
    GeneralSettings m_general, m_startingGeneral;
    Protection m_protection;
    mutable std::optional<SecretSettings> m_secrets; // determined on first use
    ChosenSettings m_chosen;
    QStringList m_notices;
    QSet<QString> m_savedKeywords;
    QString m_lastUserKeyword;
    bool m_settleQueued = false;
    SessionPanels m_panels;
    PanelChanges m_changes;
};

} // namespace host

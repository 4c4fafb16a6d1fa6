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
    void adoptPanels(platform::PrintDialogPanels panels);
    const Protection &protection() const { return m_protection; }
    void setProtection(const Protection &protection);

    const Destination &destination() const { return m_destination; }
    PpdDocument *ppd() const { return m_ppd.get(); }
    const Policy::Rule &rule() const { return m_rule; } // of the administrator
    const Locks &locks() const { return m_locks; }      // no setter of this class violates them
    // The user's default or preset setting that was ignored because of the policy; no error if there is none.
    const PrintError &policyViolation() const { return m_policyViolation; }
    const SessionPanels &panels() const { return m_panels; }
    bool isPanelLocked(int index) const { return m_rule.locksPanel(m_panels.panel(index)->panelKind()); }
    GeneralSettings &general() { return m_general; }
    const GeneralSettings &general() const { return m_general; }
    const GeneralSettings &startingGeneral() const { return m_startingGeneral; } // before the first choice
    // Whether the value of an option, a panel's key or a job option is a password or a code. It is then not
    // shown, stored, or passed to other programs.
    bool isSecret(const QString &key) const;
    // Restores a panel once, before it is shown or set. The panels before it announce the choices of their
    // options but are not restored, since a panel may query a device that is switched off.
    void prepare(int index);
    void save(); // all restored panels
    // PPD options that neither the general page nor a panel shows, without those for installed units.
    QStringList otherKeywords() const;

    // Marks a choice of the user; panels with the option are updated. False if the PPD does not have the
    // choice, or the policy has fixed another one.
    bool markChoice(const QString &keyword, const QString &choice, bool isSecret = false);
    // The choices made so far: here, in saved panels, and by callers that record them.
    const ChosenSettings &chosen() const { return m_chosen; }
    void noteChosen(ChosenSetting setting);
    QList<Conflict> conflicts() const;
    // libcups's resolution of the conflicts that keeps the user's last change if possible, and never gives up
    // a protecting choice. If every resolution would, `givenUp`, which may be null, is set to the protection.
    std::optional<Resolution> proposal(QString *givenUp = nullptr) const;
    void apply(const Resolution &resolution);
    // Changes that the user did not request, and errors, since the last call. Localised.
    QStringList takeNotices();
    void addNotice(const QString &notice);
    // Notifies panels that have not been restored of the choices of their options first.
    QList<SummarySection> summary();
    QList<JobOption> jobOptions() const; // sent with the job; see host/session/job_options.h
    PanelHost *panelHost() { return &m_host; }

Q_SIGNALS:
    void changed(); // there are new notices, or choices have changed outside of the shown page

private:
    friend class StateRestorer; // sets values that front ends must not set

    bool mark(ChosenSetting *setting);
    void panelKeyChanged(int panel, const QString &key);
    void keepLocked(int panel, const QString &key);
    void leaveOutForbidden();
    void lockPages();
    void noteAnnounced(const QString &keyword);
    void settle(); // processes the changes that panels have announced, after their calls have returned
    void settleLater();

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

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/protection.h"
#include "host/policy/policy.h"
#include "host/printing/destination.h"
#include "host/printing/ppd_document.h"
#include "host/session/chosen_settings.h"
#include "host/session/general_settings.h"
#include "host/session/panel_changes.h"
#include "host/session/session_panels.h"
#include "host/session/summary_section.h"
#include "platform/print_dialog.h"
#include "platform/printing_manager.h"

#include <QObject>
#include <QSet>

#include <memory>

namespace host {

class Extensions;

// One dialog for one printer: its PPD, the job's settings and the plug-in's panels, and their host. Works
// without a window; a window, or a batch run, drives it. A panel is restored once, before it is first shown;
// only restored panels are saved. Owns everything it hands out.
class DialogSession : public QObject,
                      public platform::PrintDialogHost,
                      public platform::ConstraintResolvingHost,
                      public platform::BlockingWorkHost,
                      public platform::PanelProblemHost
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
    void setProtection(const Protection &protection) { m_protection = protection; }

    const Destination &destination() const { return m_destination; }
    PpdDocument *ppd() const { return m_ppd.get(); }
    // What the administrator has laid down for this printer.
    const Policy::Rule &rule() const { return m_rule; }
    bool isPanelLocked(int index) const { return m_rule.locksPanel(panel(index)->panelKind()); }
    GeneralSettings &general() { return m_general; }
    const GeneralSettings &general() const { return m_general; }
    const GeneralSettings &startingGeneral() const { return m_startingGeneral; } // before anybody chose
    int panelCount() const { return m_panels.count(); }
    platform::PrintDialogPanel *panel(int index) const { return m_panels.at(index).panel.get(); }
    QStringList panelKeywords(int index) const { return m_panels.at(index).keywords; }
    bool isRestored(int index) const { return m_panels.at(index).restored; }
    // The panel that handles a PPD option, or -1.
    int panelOfKeyword(const QString &keyword) const { return m_panels.ofKeyword(keyword); }
    // Whether an option or a panel's key holds a code, which nobody but its user may see.
    bool isSecret(const QString &key) const;
    // The panel that answers a key or key path beside the PPD options, or -1.
    int panelOfSetting(const QString &keyPath) const { return m_panels.ofSetting(keyPath); }
    // The keys and key paths beside PPD options that a panel lets itself be set by.
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
    // the reverse. Nil when nothing is.
    QString protectionGap() const;

    // Panels that have not been restored are first told how their options stand.
    QList<SummarySection> summary();
    // What is sent with the job; see host/session/job_options.h.
    QList<JobOption> jobOptions() const;

    PMPrintSettings printSettings() override { return &m_printSettings; }
    PMPrintSession printSession() override { return &m_printSession; }
    ppd_file_s *ppdFile() override { return m_ppd ? m_ppd->record() : nullptr; }
    void willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice) override;
    void willBlock(const QString &what) override;
    void didBlock() override;
    void panelFailed(const QString &className, const QString &reason) override;

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
    void savePanel(int index);
    // Works through the changes that panels have announced, once their calls have returned.
    void settle();
    void settleLater();
    void tellUnknownDefaults();

    Policy::Rule m_rule;
    Destination m_destination;
    std::unique_ptr<PpdDocument> m_ppd;
    platform::PrintSettings m_printSettings;
    platform::PrintSession m_printSession;
    GeneralSettings m_general;
    GeneralSettings m_startingGeneral;
    Protection m_protection;
    ChosenSettings m_chosen;
    QStringList m_notices;
    QSet<QString> m_savedKeywords;
    QString m_lastUserKeyword;
    bool m_settleQueued = false;
    SessionPanels m_panels;
    PanelChanges m_changes;
};

} // namespace host

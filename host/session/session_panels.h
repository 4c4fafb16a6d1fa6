// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/session_panel.h"

#include <QObject>

#include <vector>

namespace host {

class PpdDocument;

// The plug-in's panels in a session. All calls of the session into panels go through this class; errors and
// exceptions become localised messages. Part of a session and destroyed with it. The PPD belongs to the
// session, may be null, and outlives the panels.
class SessionPanels : public QObject
{
    Q_OBJECT
public:
    explicit SessionPanels(const PpdDocument *ppd) : m_ppd(ppd) {}

    // Call once.
    void adopt(platform::PrintDialogPanels panels);
    void clear() { m_panels.clear(); }
    int count() const { return static_cast<int>(m_panels.size()); }
    const SessionPanel &at(int index) const { return m_panels.at(static_cast<size_t>(index)); }
    platform::PrintDialogPanel *panel(int index) const { return at(index).panel.get(); }
    platform::KeyValueObject *objectOf(int index) const { return at(index).panel->keyValueObject(); }
    const QStringList &keywords(int index) const { return at(index).keywords; } // PPD options that it handles
    bool isRestored(int index) const { return at(index).restored; }
    // The panel that handles a PPD option, or -1.
    int ofKeyword(const QString &keyword) const;
    // The panel that has this key or key path, which is not a PPD option, or -1.
    int ofSetting(const QString &keyPath) const;
    // The keys and key paths of a panel that can be set, other than PPD options.
    QStringList settableKeysOf(int index) const;

    // Whether a call into a panel is in progress.
    bool isBusy() const { return m_busy > 0; }
    // Whether a panel is being restored: it may wait for a device, and its values are not valid yet.
    bool isRestoring(int index) const { return m_restoring == &at(index); }
    // The panel that is being saved, or -1.
    int saving() const { return m_saving; }

    // Sets on a panel the choices that are marked in the PPD, as a restore would, so that panels that depend
    // on the options are notified. Does nothing for a panel that already follows the choices.
    void announceChoices(int index);
    void restore(int index);
    void save(int index);
    // Sets an option on all panels that follow the choices, or on one panel.
    void set(const QString &keyword, const QString &choice);
    void setOn(int index, const QString &keyword, const QString &choice);

Q_SIGNALS:
    // A key of a panel has changed, for whatever reason.
    void keyChanged(int index, const QString &key);
    // After a save, a key of a panel other than a PPD option has a different value.
    void chosen(const QString &key, const QString &value);
    // The problem is localised.
    void failed(const QString &problem);

private:
    SessionPanel &own(int index) { return m_panels.at(static_cast<size_t>(index)); }
    void watch(int index);
    void recordKeys(int index, bool areChosen);

    const PpdDocument *m_ppd;
    std::vector<SessionPanel> m_panels;
    int m_busy = 0; // number of calls into panels in progress
    int m_saving = -1;
    const SessionPanel *m_restoring = nullptr;
    // the panel that is being notified of choices, as opposed to a change
    const SessionPanel *m_announcing = nullptr;
};

} // namespace host

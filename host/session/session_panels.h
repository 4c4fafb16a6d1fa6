// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/session_panel.h"

#include <QObject>

#include <vector>

namespace host {

class PpdDocument;

// The plug-in's panels in a session, and every call that the session makes into them: an error or an
// exception of theirs becomes words for the user. Part of a session and gone with it; the PPD is the
// session's, may be null, and outlives the panels.
class SessionPanels : public QObject
{
    Q_OBJECT
public:
    explicit SessionPanels(const PpdDocument *ppd) : m_ppd(ppd) {}

    // Once.
    void adopt(platform::PrintDialogPanels panels);
    void clear() { m_panels.clear(); }
    int count() const { return static_cast<int>(m_panels.size()); }
    const SessionPanel &at(int index) const { return m_panels.at(static_cast<size_t>(index)); }
    platform::KeyValueObject *objectOf(int index) const { return at(index).panel->keyValueObject(); }
    // The panel that handles a PPD option, or -1.
    int ofKeyword(const QString &keyword) const;
    // The panel that answers a key or key path other than the PPD options, or -1.
    int ofSetting(const QString &keyPath) const;
    // The keys and key paths other than PPD options that a panel can be set by.
    QStringList settableKeysOf(int index) const;

    // Whether a call into a panel is under way.
    bool isBusy() const { return m_busy > 0; }
    // Whether a panel is being restored: it may wait for a device, and what it holds means nothing yet.
    bool isRestoring(int index) const { return m_restoring == &at(index); }
    // The panel that is being saved, or -1.
    int saving() const { return m_saving; }

    // Sets what is marked in the PPD, which is what a restore would read, so that the panels that listen to
    // it know. Nothing for a panel that follows the choices already.
    void announceChoices(int index);
    void restore(int index);
    void save(int index);
    // Sets an option on all panels that follow the choices, or on one.
    void set(const QString &keyword, const QString &choice);
    void setOn(int index, const QString &keyword, const QString &choice);

Q_SIGNALS:
    // A key of a panel has another value, for whatever reason.
    void keyChanged(int index, const QString &key);
    // A panel that was saved holds another value for a key other than its PPD options than before.
    void chosen(const QString &key, const QString &value);
    // Localised.
    void failed(const QString &problem);

private:
    SessionPanel &own(int index) { return m_panels.at(static_cast<size_t>(index)); }
    void watch(int index);
    void lookAtKeys(int index, bool areChosen);

    const PpdDocument *m_ppd;
    std::vector<SessionPanel> m_panels;
    int m_busy = 0; // calls into panels that are under way
    int m_saving = -1;
    const SessionPanel *m_restoring = nullptr;
    const SessionPanel *m_announcing = nullptr; // is being told what is so, not what to change
};

} // namespace host

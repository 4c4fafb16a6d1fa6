// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "host/session/dialog_session.h"

#include <QString>
#include <QStringList>

namespace host {

// Sets values by name, as a person at a control would: a PPD option keyword, a key or key path that a panel
// answers, or one of the general settings "copies", "collate", "page-ranges" and those of the page layout. A
// panel that answers is restored first, set through its key-value object, and saved. Lives for one round of
// settings.
class SettingKeys
{
public:
    explicit SettingKeys(DialogSession *session) : m_session(session) {}

    // False with an error in plain words, and nothing changed, when there is no such key or it does not take
    // the value. The error never repeats a value that is a code: one of a secret key, or of any key when the
    // value came by a way for secrets.
    bool set(const QString &key, const QString &value, PrintError *error, bool valueIsSecret = false);
    // Whether set() has something to set under this key, whatever the value.
    bool knows(const QString &key) const;
    // False for a value that the print system may understand and the page layout does not.
    bool takes(const QString &key, const QString &value) const;
    // The keys that can be set apart from PPD options, as "panel kind" and "key"; "general" stands for the
    // settings that every printer has.
    QList<std::pair<QString, QString>> panelKeys() const;

private:
    bool isLayout(const QString &key) const;
    bool setLayout(const QString &key, const QString &value, PrintError *error);
    bool setGeneral(const QString &key, const QString &value, PrintError *error);
    bool setOption(const QString &keyword, const QString &value, PrintError *error);
    bool setOnPanel(int panel, const QString &keyPath, const QString &value, PrintError *error);
    // "A has no choice “B”; it has C.", without B where that may be a code.
    PrintError noSuchChoice(const PpdOption &option, const QString &choice) const;

    DialogSession *m_session;
    bool m_valueIsSecret = false;
};

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"
#include "host/session/dialog_session.h"

#include <QString>
#include <QStringList>

namespace host {

// Sets values by name as a user would with a control: a PPD option keyword, a key or key path of a panel, or
// one of the general settings "copies", "collate", "page-ranges" and those of the page layout. The panel of a
// key is restored first, set through its key-value object, and saved. Used for one sequence of settings.
class SettingKeys
{
public:
    explicit SettingKeys(DialogSession *session) : m_session(session) {}

    // False with a localised error, and without a change, if there is no such key or the value is invalid.
    // The error never contains a value that is a code: that of a secret key, or of any key if `valueIsSecret`
    // is set.
    bool set(const QString &key, const QString &value, PrintError *error, bool valueIsSecret = false);
    // Whether set() accepts this key, whatever the value.
    bool knows(const QString &key) const;
    // False for a value that the print system may accept but the page layout does not.
    bool takes(const QString &key, const QString &value) const;
    // The keys that can be set in addition to PPD options, as "panel kind" and "key"; "general" represents
    // the general settings.
    QList<std::pair<QString, QString>> panelKeys() const;

private:
    bool isLayout(const QString &key) const;
    bool setLayout(const QString &key, const QString &value, PrintError *error);
    bool setGeneral(const QString &key, const QString &value, PrintError *error);
    bool setOption(const QString &keyword, const QString &value, PrintError *error);
    bool setOnPanel(int panel, const QString &keyPath, const QString &value, PrintError *error);
    // "A has no choice “B”; it has C.", without B if it may be a code.
    PrintError noSuchChoice(const PpdOption &option, const QString &choice) const;

    DialogSession *m_session;
    bool m_valueIsSecret = false;
};

} // namespace host

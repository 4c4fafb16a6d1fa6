// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

class DialogSession;

// A choice made for the job: in a control, by accepting a proposal, or on the command line. A value.
struct ChosenSetting
{
    enum class Kind {
        Key,       // a PPD option, or a key of a panel
        JobOption, // a name of the print system, such as "sides" or "job-priority"
        General    // a general setting, even if the PPD has an option of the same name; not recorded
    };
    QString key;
    QString value;
    Kind kind = Kind::Key;
    QStringList options = {}; // PPD options that a standard name represented
    QString text = {};        // the display text, without the value of a code
    bool protects = false;    // it protects the user, for example private printing
    bool isSecret = false;    // the value was entered as a code: no message contains it
};

// The choices made for a job, in order. They determine what is sent, what is carried over to another printer,
// and what is reported as missing there.
class ChosenSettings
{
public:
    // Appends a choice, and removes earlier choices that it overrides.
    void add(const ChosenSetting &setting);
    // Removes the choices of these keys, or restores their earlier choices.
    void takeBack(const QStringList &keys, const ChosenSettings &earlier);
    // Whether a choice was made for this key, or for a standard name that represents this PPD option.
    bool contains(const QString &key) const;
    const QList<ChosenSetting> &inOrder() const { return m_settings; }

private:
    QList<ChosenSetting> m_settings;
};

// The setting with its display text in this session.
ChosenSetting inWords(const DialogSession &session, ChosenSetting setting);

} // namespace host

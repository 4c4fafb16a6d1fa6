// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_error.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

class DialogSession;

// One thing that has been chosen for the job: in a control, by an accepted proposal, or on the command line.
// A value.
struct ChosenSetting
{
    enum class Kind {
        Key,      // a PPD option, or a key of a panel
        JobOption // a name of the print system, such as "sides" or "job-priority"
    };
    QString key;
    QString value;
    Kind kind = Kind::Key;
    QStringList options = {}; // of the PPD: what a standard name stood for
    QString text = {};        // what people call it, without the value of a code
    bool protects = false;    // it protects the user, as private printing does
    bool isSecret = false;    // the value came by a way for codes: no message repeats it
};

// What has been chosen for a job, in the order it was set. What is sent, what another printer takes over and
// what is missed there follow from it.
class ChosenSettings
{
public:
    // Takes the place, at the end, of earlier choices that it decides about anew.
    void add(const ChosenSetting &setting);
    // Forgets the choices of these keys, or takes them as they were earlier.
    void takeBack(const QStringList &keys, const ChosenSettings &earlier);
    // Whether this key, or a standard name that stands for this option of the PPD, has been chosen.
    bool contains(const QString &key) const;
    const QList<ChosenSetting> &inOrder() const { return m_settings; }

private:
    QList<ChosenSetting> m_settings;
};

// The setting with what people call it in this session.
ChosenSetting inWords(const DialogSession &session, ChosenSetting setting);

// Makes a choice in a session, as its user would, and the session notes it. A job option that neither the PPD
// nor a panel knows is sent as it stands. False with an error in plain words, and nothing changed, when the
// printer does not take it.
bool choose(DialogSession *session, const ChosenSetting &setting, PrintError *error);

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/policy/policy.h"
#include "host/printing/print_error.h"

#include <QMap>
#include <QString>

namespace host {

class PpdDocument;

// The settings that the policy has fixed for one printer. All requests to change a setting are checked here,
// whatever their origin and spelling. A value; an empty one fixes nothing.
class Locks
{
public:
    Locks() = default;
    // The locked options of a queue, as far as its PPD, which may be null, has the option and the choice.
    Locks(const Policy &policy, const QString &queue, const PpdDocument *ppd);

    // Fixes an option of a locked page. From then on, settings that panels store in addition to PPD options
    // are refused, since they do not indicate their page.
    void addFromPage(const QString &keyword, const QString &choice);

    bool isEmpty() const { return m_choices.isEmpty(); }
    const QMap<QString, QString> &choices() const { return m_choices; } // by keyword
    // Whether an option, in the PPD's spelling, is not fixed or is fixed to this choice.
    bool allows(const QString &keyword, const QString &choice) const
    {
        return m_choices.value(keyword, choice) == choice;
    }
    // The fixed choice of an option; null if the option is not fixed.
    QString choice(const QString &keyword) const { return m_choices.value(keyword); }

    // Checks whether a job may have this option or job option. No error if it may, else an error that names
    // the administrator. Letter case is ignored; standard names and collections are checked by the PPD
    // options that they mark. If anything is fixed, names whose effect cannot be determined are refused as
    // well. The message never contains the value. The marks of the PPD are not changed.
    PrintError refusal(PpdDocument *ppd, const QString &name, const QString &value) const;
    // An error for the first fixed option that is marked with another choice; no error if there is none.
    PrintError refusal(const PpdDocument &ppd) const;
    // An error with a reason in one sentence.
    PrintError refused(const QString &why) const;
    // Marks every fixed choice.
    void mark(PpdDocument *ppd) const;

private:
    PrintError mustBe(const PpdDocument &ppd, const QString &keyword) const;

    QString m_attribution;
    QMap<QString, QString> m_choices;
    bool m_hasPages = false;
};

} // namespace host

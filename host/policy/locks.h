// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/policy/policy.h"
#include "host/printing/print_error.h"

#include <QMap>
#include <QString>

namespace host {

class PpdDocument;

// What the policy has fixed on one printer. Every request to change a setting is judged here, whichever way
// it is made and however it is spelled. A value; an empty one fixes nothing.
class Locks
{
public:
    Locks() = default;
    // The locked options of a queue that its PPD (may be null) has, where it has the choice, too.
    Locks(const Policy &policy, const QString &queue, const PpdDocument *ppd);

    // Fixes an option of a page where nothing can be changed. Settings of pages that are stored beside the
    // PPD options are refused from then on, since they do not tell which page they belong to.
    void addFromPage(const QString &keyword, const QString &choice);

    bool isEmpty() const { return m_choices.isEmpty(); }
    const QMap<QString, QString> &choices() const { return m_choices; } // by keyword
    // Null where the option is free.
    QString choice(const QString &keyword) const { return m_choices.value(keyword); }

    // Why a job cannot have this option or job option, with the administrator's name; no error where it can.
    // Names and choices count in any case, standard names and collections for what they mark in the PPD.
    // Where something is fixed, names are refused that may change it in a way that cannot be told. The
    // message never repeats the value. What is marked in the PPD stays as it is.
    PrintError refusal(PpdDocument *ppd, const QString &name, const QString &value) const;
    // The first fixed option that is marked otherwise; no error when there is none.
    PrintError refusal(const PpdDocument &ppd) const;
    // For a reason in one sentence.
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

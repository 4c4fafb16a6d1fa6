// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSet>
#include <QString>

namespace host {

class PpdDocument;
struct Protection;

// The settings whose values are passwords or codes. These are the ones that a bundle declares, options of a
// PPD that take passcodes, and options of a PPD that look like the digits of a code: they have a choice for
// each digit (and perhaps "None" or "Off") and are numbered, as in "DINDigit1" to "DINDigit5", or named for a
// code. A job option that the PPD does not know is secret by its name, as "job-password" is. A value.
class SecretSettings
{
public:
    SecretSettings() = default; // by their names alone
    // `ppd` may be null.
    SecretSettings(const PpdDocument *ppd, const Protection &protection);

    // `name` is an option, a key of a panel or a job option, in any case.
    bool contains(const QString &name) const;

private:
    QSet<QString> m_names;   // in lower case
    QSet<QString> m_options; // of the PPD, secret or not; in lower case
};

// What is shown in place of a secret value.
inline QString hiddenValue()
{
    return QStringLiteral("•");
}

} // namespace host

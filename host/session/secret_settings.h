// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSet>
#include <QString>

namespace host {

class PpdDocument;
struct Protection;

// The settings whose values are passwords or codes: those declared by a bundle, PPD options that accept
// passcodes, and PPD options that look like the digits of a code. The latter have a choice for each digit
// (and possibly "None" or "Off"), and are numbered, as in "DINDigit1" to "DINDigit5", or have a name that
// indicates a code. A job option that the PPD does not have is recognized as secret by its name, such as
// "job-password". A value.
class SecretSettings
{
public:
    SecretSettings() = default; // recognizes secrets by name only
    // `ppd` may be null.
    SecretSettings(const PpdDocument *ppd, const Protection &protection);

    // `name` is an option, a key of a panel or a job option; case is ignored.
    bool contains(const QString &name) const;

private:
    QSet<QString> m_names;   // in lower case
    QSet<QString> m_options; // of the PPD, secret or not; in lower case
};

// Displayed in place of a secret value.
inline QString hiddenValue()
{
    return QStringLiteral("•");
}

} // namespace host

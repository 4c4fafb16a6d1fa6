// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

class PpdDocument;
struct Destination;

// The administrator's policy for printing on this computer: the queues that are offered, default choices, and
// locked and hidden options. A convenience for users who follow it, not a security boundary: the print server
// accepts any options. A value; an empty policy has no effect.
class Policy
{
public:
    // The rules for one queue. Options are PPD keywords.
    struct Rule
    {
        QMap<QString, QString> defaults; // if the user has no default
        QMap<QString, QString> locked;   // if a code belongs to a locked option, it is required as well
        QStringList hiddenOptions;
        QStringList hiddenPanels; // panel kinds, or their last part ("color-settings-2")
        QStringList lockedPanels; // the same
        bool hidesPanel(const QString &kind) const;
        bool locksPanel(const QString &kind) const;
        // The fixed choice of an option; null if it is not fixed, or this printer does not have the choice.
        QString lockedChoice(const PpdDocument *ppd, const QString &keyword) const;
        // The fixed choices of all options.
        QMap<QString, QString> lockedChoices(const PpdDocument *ppd) const;
        // Sets defaults and locked choices as options of the destination, except those that the printer does
        // not have.
        void applyTo(Destination *destination, const PpdDocument *ppd) const;
    };

    // Parses a policy file. Null with an error that names the file and the line or the rule if it is not
    // valid.
    static std::optional<Policy> parse(const QByteArray &json, const QString &fileName, QString *error);
    // Reads /etc/kelmar-print/policy.json, or the file named in KELMAR_PRINT_POLICY. Empty if there is none;
    // with a problem if it cannot be used.
    static Policy installed();

    // The policy of the windows of this process; empty until it is set.
    static const Policy &current();
    static void setCurrent(const Policy &policy);

    // The combined rules of a queue; if two rules set the same option, the later one applies.
    Rule ruleFor(const QString &queue) const;
    bool offers(const QString &queue) const;
    // The reason why the policy is not in force, for display; null if it is. Localised.
    QString problem() const { return m_problem; }
    const QString &fileName() const { return m_fileName; } // null if there is none
    // "Set by the administrator", with the contact from the file if there is one. Localised.
    QString attribution() const;

private:
    struct Entry
    {
        QStringList queues; // wildcards; empty means all queues
        Rule rule;
    };
    friend class PolicyReader;

    QString m_problem;
    QString m_fileName;
    QString m_contact;
    QStringList m_offered; // wildcards; empty means all queues
    QList<Entry> m_entries;
};

} // namespace host

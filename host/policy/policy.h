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

// What the administrator of this computer has laid down for printing: which queues are offered, which options
// begin with what, which are fixed, which are not shown. Convenience for users who follow it, and no security
// boundary: the print server takes any options. A value; an empty one lays down nothing.
class Policy
{
public:
    // What holds for one queue. Options are PPD keywords.
    struct Rule
    {
        QMap<QString, QString> defaults; // where the user has no default
        QMap<QString, QString> locked;   // a locked option that a code belongs to needs the code as well
        QStringList hiddenOptions;
        QStringList hiddenPanels; // kinds, or the last part of one ("color-settings-2")
        QStringList lockedPanels; // the same
        bool hidesPanel(const QString &kind) const;
        bool locksPanel(const QString &kind) const;
        // The choice that an option is fixed to; null where it is free, or where this printer lacks the
        // choice.
        QString lockedChoice(const PpdDocument *ppd, const QString &keyword) const;
        QMap<QString, QString> lockedChoices(const PpdDocument *ppd) const; // all of them
        // Makes defaults and locked choices options of the destination, but for those that the printer lacks.
        void applyTo(Destination *destination, const PpdDocument *ppd) const;
    };

    // Reads a policy file. Null with an error, in words with the file's name and the line or the rule, when
    // it is not one.
    static std::optional<Policy> parse(const QByteArray &json, const QString &fileName, QString *error);
    // The file of this computer, /etc/kelmar-print/policy.json, or the one that KELMAR_PRINT_POLICY names;
    // empty where there is none, and with a problem where it cannot be used.
    static Policy installed();

    // What the windows of this process go by; empty until it is set.
    static const Policy &current();
    static void setCurrent(const Policy &policy);

    // All of a queue's rules together; where two speak of the same, the later one holds.
    Rule ruleFor(const QString &queue) const;
    bool offers(const QString &queue) const;
    // Why the policy is not in force, for display; null when it is. Localised.
    QString problem() const { return m_problem; }
    const QString &fileName() const { return m_fileName; } // null where there is none
    // "Set by the administrator", with whom to ask where the file says it. Localised.
    QString attribution() const;

private:
    struct Entry
    {
        QStringList queues; // wildcards; empty for all
        Rule rule;
    };
    friend class PolicyReader;

    QString m_problem;
    QString m_fileName;
    QString m_contact;
    QStringList m_offered; // wildcards; empty for all
    QList<Entry> m_entries;
};

} // namespace host

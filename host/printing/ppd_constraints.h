// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include "constraints/ppd_rules.h"

#include <QHash>

namespace host {

// The constraints of a document's PPD for its current marks, described with the texts of the document, which
// owns this object.
class PpdConstraints
{
public:
    explicit PpdConstraints(const PpdDocument *document);

    // Each query reads the marks first.
    const constraints::PpdRules &rules();
    QList<Conflict> conflicts();
    QMap<QString, OptionChoice> forbiddenChoices(const QString &keyword);
    QList<quint32> revisions(const QStringList &keywords);

private:
    // One side of a line; the marked choice of its option if `choice` differs from the line.
    OptionChoice side(constraints::Choice term) const;
    // The first term that belongs to another option.
    constraints::Choice otherTerm(constraints::Line line, constraints::Option option) const;

    const PpdDocument *m_document;
    constraints::PpdRules m_rules;
    QHash<QString, constraints::Option> m_numbers; // by keyword
};

} // namespace host

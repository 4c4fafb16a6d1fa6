// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_document.h"

#include "constraints/ppd_rules.h"

namespace host {

// What a document's PPD forbids together with what is marked, in the words of the document, which owns it.
class PpdConstraints
{
public:
    explicit PpdConstraints(const PpdDocument *document);

    // Each question looks at the marks first.
    QList<Conflict> conflicts();
    QMap<QString, OptionChoice> forbiddenChoices(const QString &keyword);
    quint32 revision(const QString &keyword);

private:
    // One side of a line; what is marked for its option where `choice` is not what the line says.
    OptionChoice side(constraints::Choice term) const;
    // The first term that is not one of the option's own.
    constraints::Choice otherTerm(constraints::Line line, constraints::Option option) const;

    const PpdDocument *m_document;
    constraints::PpdRules m_rules;
};

} // namespace host

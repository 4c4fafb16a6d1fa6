// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>

namespace host {

class DialogSession;
class DocumentChoice;
class PageCounter;

// Checks whether page ranges begin after the last page of all documents. Separate programs count the pages on
// first use, in the background; if the programs are not installed, every range is valid. Session and choice
// are borrowed.
class RangeCheck : public QObject
{
    Q_OBJECT
public:
    RangeCheck(DialogSession *session, DocumentChoice *documents, QObject *parent);
    // The problem with ranges in the form of normalizedPageRanges(); null if there is none, or while it is
    // not known: known() follows.
    QString problem(const QString &ranges);

Q_SIGNALS:
    void known();

private:
    DialogSession *m_session;
    DocumentChoice *m_documents;
    PageCounter *m_counter = nullptr; // created on first use
};

} // namespace host

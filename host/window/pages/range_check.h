// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>

namespace host {

class DialogSession;
class DocumentChoice;
class PageCounter;

// Whether ranges of pages lie behind the end of every document that is printed. The documents are counted
// when first needed, on a worker thread; without the programs for that every range is valid.
// Session and choice are borrowed.
class RangeCheck : public QObject
{
    Q_OBJECT
public:
    RangeCheck(DialogSession *session, DocumentChoice *documents, QObject *parent);
    // What is wrong with ranges that normalizedPageRanges() has made; null when nothing is, and for as long
    // as that is not known: known() follows.
    QString problem(const QString &ranges);

Q_SIGNALS:
    void known();

private:
    DialogSession *m_session;
    DocumentChoice *m_documents;
    PageCounter *m_counter = nullptr; // made when it is first needed
};

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/range_check.h"

#include "host/preview/page_counter.h"
#include "host/printing/page_ranges.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/session/printed_pages.h"
#include "host/window/look/foreign_text.h"

#include <algorithm>

namespace host {

RangeCheck::RangeCheck(DialogSession *session, DocumentChoice *documents, QObject *parent)
    : QObject(parent), m_session(session), m_documents(documents)
{
}

// A range that begins after the last page prints nothing.
QString RangeCheck::problem(const QString &ranges)
{
    const int beginning = lastBeginning(ranges);
    if (beginning == 0)
        return {};
    if (!m_counter) {
        m_counter = new PageCounter(PageTools::installed(), this);
        connect(m_counter, &PageCounter::counted, this, &RangeCheck::known);
    }
    m_counter->count(m_documents->included(), pageSettings(*m_session));
    int most = 0, longest = -1, included = 0;
    for (int i = 0; i < m_documents->paths().size(); ++i) {
        if (!m_documents->isIncluded(i))
            continue;
        const int pages = m_counter->pagesOf(m_documents->paths().at(i));
        if (pages == 0) // may be the longest document
            return {};
        ++included;
        if (pages > most)
            longest = i;
        most = std::max(most, pages);
    }
    const PageLayoutSettings layout = layoutAsPrinted(*m_session);
    const int pagesPerSide = layout.pagesPerSide();
    const int last = layout.sidesOf(most);
    if (longest < 0 || beginning <= last)
        return {};
    if (included > 1) {
        const QString name = oneLine(m_documents->name(longest));
        return pagesPerSide > 1
                   ? tr("The longest document, “%1”, has only %n printed sides.", nullptr, last).arg(name)
                   : tr("The longest document, “%1”, has only %n pages.", nullptr, last).arg(name);
    }
    return pagesPerSide > 1 ? tr("There are only %n printed sides.", nullptr, last)
                            : tr("The document has only %n pages.", nullptr, last);
}

} // namespace host

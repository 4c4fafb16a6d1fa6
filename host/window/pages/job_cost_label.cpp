// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/job_cost_label.h"

#include "host/preview/page_counter.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/session/job_cost.h"
#include "host/session/printed_pages.h"

#include <algorithm>

namespace host {

JobCostLabel::JobCostLabel(DocumentChoice *documents, std::function<const DialogSession *()> session,
                           QWidget *parent)
    : ElidedLabel(parent), m_documents(documents), m_session(std::move(session)),
      m_counter(new PageCounter(PageTools::installed(), this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_counter, &PageCounter::counted, this, &JobCostLabel::refresh);
    connect(documents, &DocumentChoice::includedChanged, this, &JobCostLabel::refresh);
    refresh();
}

void JobCostLabel::refresh()
{
    const DialogSession *session = m_session();
    showText(session ? costOf(*session) : QString());
}

QString JobCostLabel::costOf(const DialogSession &session)
{
    if (session.general().part != GeneralSettings::Part::Pages)
        return {};
    const PageSettings settings = pageSettings(session);
    const QStringList paths = m_documents->included();
    m_counter->count(paths, settings);
    QList<int> pages;
    for (const QString &path : paths)
        pages.append(m_counter->pagesOf(path));
    if (pages.isEmpty() || pages.contains(0))
        return {};
    GeneralSettings general = session.general();
    general.layout = layoutAsPrinted(session);
    const JobCost cost = jobCost(general, isTwoSided(session), pages);
    QStringList parts{tr("%n sheets", nullptr, cost.sheets)};
    if (cost.sides != cost.sheets)
        parts.append(tr("%n sides", nullptr, cost.sides));
    if (settings.isMonochrome)
        parts.append(tr("black and white"));
    else if (session.ppd() && !colorOptionKeyword(*session.ppd()).isNull())
        parts.append(tr("color"));
    if (std::any_of(paths.begin(), paths.end(),
                    [this](const QString &path) { return m_counter->hasSeveralSizes(path); }))
        parts.append(tr("pages of different sizes"));
    return parts.join(tr(", ", "between the parts of a list"));
}

} // namespace host

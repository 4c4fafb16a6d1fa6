// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/more_page.h"

#include "host/session/dialog_session.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/pages/option_form.h"
#include "host/window/pages/page_frame.h"

#include <QGridLayout>
#include <QLabel>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr qsizetype rowsInPart = 10; // few enough to be created within a few milliseconds
constexpr qsizetype rowsAtOnce = 20; // more than fit into a window of usual height
constexpr int titleWidth = 440;      // pixels

} // namespace

MorePage::MorePage(DialogSession *session, QWidget *parent)
    : HostPage(parent), m_session(session), m_grid(contentGrid(this)), m_toBuild(partsOf(*session))
{
    setWhatsThis(explanationOf(QStringLiteral("more")));
    while (!m_toBuild.isEmpty() && m_grid->rowCount() < rowsAtOnce)
        buildNext();
}

QList<MorePage::Part> MorePage::partsOf(const DialogSession &session) const
{
    QList<Part> parts;
    QString title;
    for (const QString &keyword : session.otherKeywords()) {
        const QString group = session.ppd()->option(keyword)->groupText;
        const bool begins = parts.isEmpty() || group != title;
        if (begins || parts.last().keywords.size() == rowsInPart)
            parts.append({begins ? group : QString(), {}});
        title = group;
        parts.last().keywords.append(keyword);
    }
    const auto groups =
        std::count_if(parts.begin(), parts.end(), [](const Part &p) { return !p.title.isNull(); });
    if (groups == 1)
        parts.first().title = QString();
    return parts;
}

void MorePage::build(const Part &part)
{
    if (!part.title.isNull()) {
        auto *title = new QLabel(this);
        title->setTextFormat(Qt::PlainText);
        QFont bold = title->font();
        bold.setBold(true);
        title->setFont(bold);
        title->setText(elided(part.title, title, titleWidth));
        if (!m_forms.isEmpty())
            title->setContentsMargins(0, 12, 0, 0);
        m_grid->addWidget(title, m_grid->rowCount(), 0, 1, 3);
    }
    auto *form = new OptionForm(m_session, part.keywords, m_grid, this);
    connect(form, &OptionForm::chosen, this, &MorePage::chosen);
    m_forms.append(form);
}

void MorePage::buildNext()
{
    build(m_toBuild.takeFirst());
    if (m_toBuild.isEmpty())
        m_grid->setRowStretch(m_grid->rowCount(), 1);
    else if (m_painted)
        QTimer::singleShot(0, this, &MorePage::buildNext);
    Q_EMIT grown();
}

void MorePage::paintEvent(QPaintEvent *event)
{
    HostPage::paintEvent(event);
    if (!std::exchange(m_painted, true) && !m_toBuild.isEmpty())
        QTimer::singleShot(0, this, &MorePage::buildNext);
}

QString MorePage::problem() const
{
    for (const OptionForm *form : m_forms) {
        if (const QString problem = form->problem(); !problem.isEmpty())
            return problem;
    }
    return {};
}

void MorePage::showProblem()
{
    for (OptionForm *form : std::as_const(m_forms)) {
        if (!form->problem().isEmpty()) {
            form->showProblem();
            return;
        }
    }
}

void MorePage::refresh()
{
    for (OptionForm *form : m_forms)
        form->refresh();
}

} // namespace host

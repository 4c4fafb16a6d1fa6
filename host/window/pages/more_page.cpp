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
    : HostPage(parent), m_session(session), m_grid(contentGrid(this)), m_toBuild(partsOf(*session)),
      m_form(new OptionForm(session, m_grid, this))
{
    connect(m_form, &OptionForm::chosen, this, &MorePage::chosen);
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
        if (m_grid->rowCount() > 1)
            title->setContentsMargins(0, 12, 0, 0);
        m_grid->addWidget(title, m_grid->rowCount(), 0, 1, 3);
    }
    m_form->add(part.keywords);
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
    return m_form->problem();
}

void MorePage::showProblem()
{
    m_form->showProblem();
}

void MorePage::refresh()
{
    m_form->refresh();
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/more_page.h"

#include "host/session/dialog_session.h"
#include "host/window/option_form.h"

#include <QGridLayout>
#include <QLabel>

namespace host {

namespace {

struct Group
{
    QString title;
    QStringList keywords;
};

QList<Group> groupsOf(const DialogSession &session)
{
    QList<Group> groups;
    for (const QString &keyword : session.otherKeywords()) {
        const QString title = session.ppd()->option(keyword)->groupText;
        if (groups.isEmpty() || groups.last().title != title)
            groups.append({title, {}});
        groups.last().keywords.append(keyword);
    }
    return groups;
}

} // namespace

MorePage::MorePage(DialogSession *session, QWidget *parent) : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(2, 1);
    const QList<Group> groups = groupsOf(*session);
    for (const Group &group : groups) {
        if (groups.size() > 1) {
            auto *title = new QLabel(group.title, this);
            title->setTextFormat(Qt::PlainText);
            QFont bold = title->font();
            bold.setWeight(QFont::DemiBold);
            title->setFont(bold);
            if (&group != &groups.first())
                title->setContentsMargins(0, 12, 0, 0);
            grid->addWidget(title, grid->rowCount(), 0, 1, 3);
        }
        auto *form = new OptionForm(session, group.keywords, grid, this);
        connect(form, &OptionForm::chosen, this, &MorePage::chosen);
        // One choice may free or forbid those of another group.
        connect(form, &OptionForm::chosen, this, &MorePage::refresh);
        m_forms.append(form);
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

void MorePage::refresh()
{
    for (OptionForm *form : m_forms)
        form->refresh();
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/option_form.h"

#include "host/session/dialog_session.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QStandardItemModel>

namespace host {

namespace {

constexpr int boxWidth = 240; // pixels, as in the panels

}

OptionForm::OptionForm(DialogSession *session, const QStringList &keywords, QGridLayout *grid,
                       Mnemonics *mnemonics, QObject *parent)
    : QObject(parent), m_session(session)
{
    for (const QString &keyword : keywords)
        addRow(keyword, grid, mnemonics);
    refresh();
}

void OptionForm::addRow(const QString &keyword, QGridLayout *grid, Mnemonics *mnemonics)
{
    const auto option = m_session->ppd()->option(keyword);
    if (!option || option->choices.isEmpty())
        return;
    auto *box = new QComboBox(grid->parentWidget());
    box->setMinimumWidth(boxWidth);
    box->setObjectName(option->keyword);
    box->setAccessibleName(option->text);
    for (const PpdOption::Choice &choice : option->choices)
        box->addItem(choice.text, choice.keyword);
    auto *label =
        new QLabel(tr("%1:", "label of a field").arg(mnemonics->assign(option->text)), grid->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    label->setBuddy(box);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    m_rows.append({.keyword = option->keyword, .box = box});
    connect(box, &QComboBox::activated, this, [this, box, keyword] {
        m_session->markChoice(keyword, box->currentData().toString());
        refresh();
        Q_EMIT chosen(keyword);
    });
}

QComboBox *OptionForm::box(const QString &keyword) const
{
    for (const Row &row : m_rows) {
        if (row.keyword == keyword)
            return row.box;
    }
    return nullptr;
}

void OptionForm::refresh()
{
    for (Row &row : m_rows)
        refreshRow(row);
}

void OptionForm::refreshRow(Row &row)
{
    const QString current = m_session->ppd()->markedChoice(row.keyword);
    const quint32 revision = m_session->ppd()->forbiddenRevision(row.keyword);
    if (row.isDecided && row.current == current && row.revision == revision) {
        row.box->setCurrentIndex(row.index);
        return;
    }
    row.index = row.box->findData(current);
    row.box->setCurrentIndex(row.index);
    row.current = current;
    row.revision = revision;
    row.isDecided = true;
    greyOut(row);
}

void OptionForm::greyOut(const Row &row)
{
    const auto forbidden = m_session->ppd()->forbiddenChoices(row.keyword);
    auto *items = qobject_cast<QStandardItemModel *>(row.box->model());
    for (int i = 0; items && i < items->rowCount(); ++i) {
        const QString choice = row.box->itemData(i).toString();
        const bool free = choice == row.current || !forbidden.contains(choice);
        items->item(i)->setEnabled(free);
        items->item(i)->setToolTip(free ? QString()
                                        : tr("Not together with %1").arg(forbidden.value(choice).text()));
    }
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/option_form.h"

#include "host/session/dialog_session.h"
#include "host/window/mnemonics.h"
#include "platform/choice_box.h"

#include <QGridLayout>
#include <QLabel>

namespace host {

namespace {

constexpr int boxWidth = 240; // pixels, as in the panels

}

OptionForm::OptionForm(DialogSession *session, const QStringList &keywords, QGridLayout *grid,
                       QObject *parent)
    : QObject(parent), m_session(session)
{
    for (const QString &keyword : keywords)
        addRow(keyword, grid);
    refresh();
}

void OptionForm::addRow(const QString &keyword, QGridLayout *grid)
{
    const auto option = m_session->ppd()->option(keyword);
    if (!option || option->choices.isEmpty())
        return;
    auto *box = new platform::ChoiceBox(grid->parentWidget());
    box->setMinimumWidth(boxWidth);
    box->setObjectName(option->keyword);
    box->setAccessibleName(option->text);
    for (const PpdOption::Choice &choice : option->choices)
        box->addItem(choice.text, choice.keyword);
    auto *label =
        new QLabel(tr("%1:", "label of a field").arg(Mnemonics::escaped(option->text)), grid->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    label->setBuddy(box);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    m_rows.append({option->keyword, box});
    connect(box, &QComboBox::activated, this, [this, box, keyword] {
        m_session->markChoice(keyword, box->currentData().toString());
        refresh();
        Q_EMIT chosen(keyword);
    });
}

platform::ChoiceBox *OptionForm::box(const QString &keyword) const
{
    for (const Row &row : m_rows) {
        if (row.keyword == keyword)
            return row.box;
    }
    return nullptr;
}

void OptionForm::refresh()
{
    for (const Row &row : m_rows)
        refreshRow(row);
}

void OptionForm::refreshRow(const Row &row)
{
    const QString current = m_session->ppd()->markedChoice(row.keyword);
    row.box->setCurrentIndex(row.box->findData(current));
    const auto forbidden = m_session->ppd()->forbiddenChoices(row.keyword);
    for (int i = 0; i < row.box->count(); ++i) {
        const QString choice = row.box->itemData(i).toString();
        const bool free = choice == current || !forbidden.contains(choice);
        const OptionChoice obstacle = forbidden.value(choice);
        row.box->setObstacle(
            i,
            free ? QString()
                 : tr("Not available while \"%1\" is \"%2\".").arg(obstacle.optionText, obstacle.choiceText));
    }
}

} // namespace host

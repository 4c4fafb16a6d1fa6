// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/greyed_choices.h"

#include "host/session/dialog_session.h"
#include "host/window/messages/message_bar.h"
#include "platform/choice_box.h"

#include <QApplication>

#include <utility>

namespace host {

GreyedChoices::GreyedChoices(MessageBar *bar, QWidget *window) : QObject(window), m_bar(bar), m_window(window)
{
    // A list is opened by a box that has the focus.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { watch(now); });
}

void GreyedChoices::watch(QWidget *now)
{
    auto *box = qobject_cast<platform::ChoiceBox *>(now);
    if (!box || !m_window->isAncestorOf(box) || box->optionKeyword().isEmpty())
        return;
    disconnect(box, &platform::ChoiceBox::greyedPicked, this, nullptr);
    connect(box, &platform::ChoiceBox::greyedPicked, this,
            [this, box](int index) { offer(box->optionKeyword(), box->choiceKeyword(index)); });
}

void GreyedChoices::offer(const QString &keyword, const QString &choice)
{
    if (m_session && m_session->ppd())
        ask(forcedChoice(m_session, keyword, choice));
}

void GreyedChoices::ask(const ForcedChoice &forced)
{
    QStringList lines;
    QStringList answers;
    if (forced.isPossible()) {
        lines.append(tr("To use it, other settings have to change:"));
        for (qsizetype i = 0; i < forced.changes.size(); ++i)
            lines.append(QStringLiteral("•  ") +
                         tr("%1 instead of “%2”", "an option with its choice, and another choice")
                             .arg(forced.changes.at(i).text(), forced.before.at(i).choiceText));
        for (const QString &protection : forced.givenUp)
            lines.append(tr("This gives up “%1”, which protects your document.").arg(protection));
        answers.append(forced.givenUp.isEmpty() ? tr("Change and &Use It")
                                                : tr("Give Up Protection and &Use It"));
        answers.append(tr("Leave &As It Is"));
    } else {
        lines.append(tr("“%1” stands in the way, and no change was found that clears it.")
                         .arg(forced.obstacle.text()));
    }
    m_bar->showMessage(forced.isPossible() && forced.givenUp.isEmpty() ? MessageBar::Kind::Question
                                                                       : MessageBar::Kind::Notice,
                       tr("“%1” is not available now").arg(forced.wanted.text()), lines, answers);
    m_offer = forced;
    m_question = m_bar->text();
    m_bar->takeFocus();
}

bool GreyedChoices::answer(int index)
{
    const auto offer = std::exchange(m_offer, std::nullopt);
    if (!offer || m_bar->text() != m_question || !m_session)
        return false;
    if (index != 0 || !offer->isPossible())
        return true;
    const ForcedChoice now = forcedChoice(m_session, offer->wanted.option, offer->wanted.choice);
    if (now == *offer || now.obstacle.option.isEmpty())
        choose(m_session, now);
    else
        ask(now); // something else has been set since
    return true;
}

} // namespace host

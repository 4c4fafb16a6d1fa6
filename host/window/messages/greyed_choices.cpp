// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/greyed_choices.h"

#include "host/policy/policy.h"
#include "host/session/dialog_session.h"
#include "host/window/messages/message_queue.h"
#include "platform/choice_box.h"

#include <QApplication>

namespace host {

namespace {

// A solution that keeps every protection is an ordinary question; otherwise the message is a warning.
Message messageOf(const ForcedChoice &forced)
{
    Message message;
    message.title = GreyedChoices::tr("“%1” is not available now").arg(forced.wanted.text());
    if (!forced.locks.isEmpty()) {
        for (const OptionChoice &lock : forced.locks)
            message.lines.append(GreyedChoices::tr("“%1” cannot be changed.").arg(lock.text()));
        message.lines.append(Policy::current().attribution());
        return message;
    }
    if (!forced.isPossible()) {
        message.lines.append(
            GreyedChoices::tr("“%1” conflicts with this choice, and no resolution was found.")
                .arg(forced.obstacle.text()));
        return message;
    }
    message.lines.append(GreyedChoices::tr("To use it, other settings have to change:"));
    for (qsizetype i = 0; i < forced.changes.size(); ++i)
        message.lines.append(
            QStringLiteral("•  ") +
            GreyedChoices::tr("“%1” instead of “%2”", "an option with its choice, and another choice")
                .arg(forced.changes.at(i).text(), forced.before.at(i).choiceText));
    for (const QString &protection : forced.givenUp)
        message.lines.append(
            GreyedChoices::tr("This gives up “%1”, which protects your document.").arg(protection));
    message.answers = {forced.givenUp.isEmpty() ? GreyedChoices::tr("Change and &Use It")
                                                : GreyedChoices::tr("Give Up Protection and &Use It"),
                       GreyedChoices::tr("Leave &As It Is")};
    if (forced.givenUp.isEmpty())
        message.kind = StatusGlyph::Kind::Question;
    return message;
}

} // namespace

GreyedChoices::GreyedChoices(MessageQueue *messages, std::function<DialogSession *()> session,
                             QObject *parent)
    : QObject(parent), m_messages(messages), m_session(std::move(session))
{
    // A box gets the focus before its list is opened.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { watch(now); });
}

void GreyedChoices::watch(QWidget *now)
{
    auto *box = qobject_cast<platform::ChoiceBox *>(now);
    if (!box || box->window() != m_messages->bar()->window() || box->optionKeyword().isEmpty())
        return;
    disconnect(box, &platform::ChoiceBox::greyedPicked, this, nullptr);
    connect(box, &platform::ChoiceBox::greyedPicked, this,
            [this, box](int index) { offer(box->optionKeyword(), box->choiceKeyword(index)); });
}

void GreyedChoices::offer(const QString &keyword, const QString &choice)
{
    if (m_session() && m_session()->ppd())
        ask(forcedChoice(m_session(), keyword, choice));
}

void GreyedChoices::ask(const ForcedChoice &forced)
{
    m_messages->ask(MessageQueue::Subject::GreyedChoice, messageOf(forced), [this, forced](int answer) {
        if (answer == 0 && forced.isPossible())
            take(forced);
    });
    m_messages->takeFocus();
}

void GreyedChoices::take(const ForcedChoice &offered)
{
    const ForcedChoice now = forcedChoice(m_session(), offered.wanted.option, offered.wanted.choice);
    if (now != offered && !(now.obstacle.option.isEmpty() && now.locks.isEmpty())) {
        ask(now); // another setting has been changed since
        return;
    }
    Q_EMIT aboutToChoose();
    choose(m_session(), now);
    Q_EMIT chosen();
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/terminal_login.h"

#include "host/batch/terminal_input.h"
#include "host/printing/held_signals.h"
#include "platform/unique_fd.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

struct TerminalText
{
    Q_DECLARE_TR_FUNCTIONS(TerminalText)
};

constexpr int mostAnswers = 3;

void say(int terminal, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    (void)!write(terminal, bytes.constData(), static_cast<size_t>(bytes.size()));
}

// Null if the input ends or a signal arrives before the end of the line.
std::optional<QString> readLine(int terminal)
{
    const auto [outcome, line] = readInputLine(terminal);
    return outcome == InputLine::Outcome::Whole ? std::optional(QString::fromUtf8(line)) : std::nullopt;
}

// Disables the echo before it asks. Discards input that was typed, and shown, before that. Null as
// readLine().
std::optional<QString> askHidden(int terminal, const QString &question)
{
    const EchoDisabler disabler(terminal);
    say(terminal, question);
    const auto line = disabler.isActive() ? readLine(terminal) : std::nullopt;
    say(terminal, QStringLiteral("\n"));
    return line;
}

} // namespace

std::optional<Login> askOnTerminal(const LoginQuestion &question)
{
    static int answers = 0;
    answers = question.again ? answers + 1 : 1;
    const platform::UniqueFd file(open("/dev/tty", O_RDWR | O_CLOEXEC));
    const int terminal = file.get();
    if (!file || answers > mostAnswers)
        return std::nullopt;
    const HeldSignals signalsWait; // until the echo is enabled again
    if (question.again)
        say(terminal,
            TerminalText::tr("The user name or the password was not accepted.") + QLatin1Char('\n'));
    if (question.isInClear)
        say(terminal,
            TerminalText::tr("The password will cross the network without encryption.") + QLatin1Char('\n'));
    say(terminal, TerminalText::tr("User name for %1 [%2]: ").arg(question.server, question.user));
    auto user = readLine(terminal);
    if (!user)
        return std::nullopt;
    if (user->isEmpty())
        user = question.user;
    const auto password = askHidden(terminal, TerminalText::tr("Password: "));
    return password ? std::optional(Login{*user, *password}) : std::nullopt;
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/terminal_login.h"

#include "host/printing/held_signals.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace host {

namespace {

struct TerminalText
{
    Q_DECLARE_TR_FUNCTIONS(TerminalText)
};

constexpr int mostAnswers = 3;
constexpr qsizetype longestAnswer = 1024; // bytes

// A terminal that does not show what is typed.
class Echoless
{
public:
    explicit Echoless(int terminal) : m_terminal(terminal)
    {
        m_isChanged = tcgetattr(terminal, &m_before) == 0;
        termios hidden = m_before;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        m_isChanged = m_isChanged && tcsetattr(terminal, TCSAFLUSH, &hidden) == 0;
    }
    ~Echoless()
    {
        if (m_isChanged)
            tcsetattr(m_terminal, TCSAFLUSH, &m_before);
    }
    Echoless(const Echoless &) = delete;
    Echoless &operator=(const Echoless &) = delete;
    bool isHidden() const { return m_isChanged; }

private:
    int m_terminal;
    termios m_before = {};
    bool m_isChanged = false;
};

void say(int terminal, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    (void)!write(terminal, bytes.constData(), static_cast<size_t>(bytes.size()));
}

// A line without its end; nil when the input ends or a signal comes before it.
std::optional<QString> readLine(int terminal)
{
    QByteArray line;
    char c = 0;
    while (line.size() < longestAnswer) {
        if (read(terminal, &c, 1) != 1)
            return std::nullopt;
        if (c == '\n')
            break;
        line += c;
    }
    return QString::fromUtf8(line);
}

// Asks when nothing shows any more: what is typed before that is shown, and then thrown away.
std::optional<QString> askHidden(int terminal, const QString &question)
{
    const Echoless echoless(terminal);
    say(terminal, question);
    const auto line = echoless.isHidden() ? readLine(terminal) : std::nullopt;
    say(terminal, QStringLiteral("\n"));
    return line;
}

} // namespace

std::optional<Login> askOnTerminal(const LoginQuestion &question)
{
    static int answers = 0;
    answers = question.again ? answers + 1 : 1;
    const int terminal = open("/dev/tty", O_RDWR | O_CLOEXEC);
    if (terminal < 0 || answers > mostAnswers)
        return std::nullopt;
    QFile closer; // of the terminal, at the end
    (void)closer.open(terminal, QIODevice::ReadWrite | QIODevice::Unbuffered, QFile::AutoCloseHandle);
    const HeldSignals signalsWait; // until the terminal echoes again
    if (question.again)
        say(terminal,
            TerminalText::tr("The user name or the password was not accepted.") + QLatin1Char('\n'));
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

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/terminal_input.h"

#include "host/printing/held_signals.h"

#include <cerrno>
#include <unistd.h>

namespace host {

namespace {

constexpr char interruptKey = 3; // Ctrl+C, which is read as a character while the signal keys are disabled

}

EchoDisabler::EchoDisabler(int terminal) : m_terminal(terminal)
{
    m_active = tcgetattr(terminal, &m_before) == 0;
    termios silent = m_before;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
    m_active = m_active && tcsetattr(terminal, TCSAFLUSH, &silent) == 0;
}

EchoDisabler::~EchoDisabler()
{
    if (m_active)
        tcsetattr(m_terminal, TCSAFLUSH, &m_before);
}

InputLine readInputLine(int descriptor)
{
    using Outcome = InputLine::Outcome;
    QByteArray line;
    while (line.size() <= InputLine::longest) {
        char byte = 0;
        const ssize_t count = read(descriptor, &byte, 1);
        if (count < 0 && errno == EINTR && !HeldSignals::isPending())
            continue;
        if (count < 0)
            return {HeldSignals::isPending() ? Outcome::None : Outcome::Failed, {}};
        if (byte == interruptKey || (count == 0 && line.isEmpty()))
            return {};
        if (count == 0 || byte == '\n')
            return {Outcome::Whole, line};
        line.append(byte);
    }
    return {Outcome::TooLong, {}};
}

} // namespace host

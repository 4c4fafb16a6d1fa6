// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <termios.h>

namespace host {

// Disables the echo and the signal keys of a terminal during the lifetime of the object. A signal could
// otherwise end the program while the echo is disabled. The descriptor is borrowed.
class EchoDisabler
{
public:
    explicit EchoDisabler(int terminal);
    ~EchoDisabler();
    EchoDisabler(const EchoDisabler &) = delete;
    EchoDisabler &operator=(const EchoDisabler &) = delete;
    // False if there is no terminal, or its mode cannot be changed.
    bool isActive() const { return m_active; }

private:
    int m_terminal;
    bool m_active = false;
    termios m_before = {};
};

// The input up to the end of a line, without the line end.
struct InputLine
{
    enum class Outcome {
        Whole,
        None,    // no input, Ctrl+C without echo, or a signal is held (held_signals.h)
        TooLong, // more than `longest` bytes
        Failed   // with errno
    };
    static constexpr qsizetype longest = 4096; // bytes

    Outcome outcome = Outcome::None;
    QByteArray bytes;
};

// Reads single bytes, since data after the line belongs to another reader. Blocks.
InputLine readInputLine(int descriptor);

} // namespace host

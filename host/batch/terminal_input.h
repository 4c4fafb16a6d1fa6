// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <termios.h>

namespace host {

// While it lives, a terminal shows nothing of what is typed, and no key sends a signal that would leave it
// like that. The descriptor is borrowed.
class Silence
{
public:
    explicit Silence(int terminal);
    ~Silence();
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;
    // False where there is no terminal, or it does not obey.
    bool isActive() const { return m_active; }

private:
    int m_terminal;
    bool m_active = false;
    termios m_before = {};
};

// What was read up to the end of a line, without that end.
struct InputLine
{
    enum class Fate {
        Whole,
        None,    // nothing came, or Ctrl+C was typed in silence, or a signal is held (held_signals.h)
        TooLong, // more than `longest` bytes
        Failed   // with errno
    };
    static constexpr qsizetype longest = 4096; // bytes

    Fate fate = Fate::None;
    QByteArray bytes;
};

// Reads by single bytes: what follows the line belongs to another reader. Blocks.
InputLine readInputLine(int descriptor);

} // namespace host

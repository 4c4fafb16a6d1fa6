// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// A user's files, sockets and processes, and programs and documents that are after them. All of it lies in a
// folder that becomes the one for temporary files, since that is where programs may write.
class HostileProgram
{
public:
    // The folder is there and empty; the object sets TMPDIR for this process.
    explicit HostileProgram(const QString &folder);
    ~HostileProgram();

    // A stand-in for a program, which becomes the real one when all it tries has been refused.
    void standIn(const QString &path, const QString &real) const;
    // One page in PostScript, and another one in front when anything that it tries has not been refused.
    QByteArray postScript() const;
    // What is not as it was, or was left behind; empty when all is well.
    QStringList damage() const;
    // Puts everything back, and ends what was left behind.
    void putBack();

private:
    QStringList survivors() const;

    QString m_folder, m_home;
    platform::UniqueFd m_bus, m_display;
};

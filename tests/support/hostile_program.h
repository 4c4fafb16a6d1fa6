// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// A user's files, sockets and processes, and programs and documents that try to access them. All of them are
// in a folder that becomes the folder for temporary files, since programs may write there.
class HostileProgram
{
public:
    // The folder must exist and be empty; the constructor sets TMPDIR for this process.
    explicit HostileProgram(const QString &folder);
    ~HostileProgram();

    // Creates a replacement for a program, which executes the real one if all its attempts were refused.
    void standIn(const QString &path, const QString &real) const;
    // One page in PostScript, preceded by another page if any of its attempts was not refused.
    QByteArray postScript() const;
    // Describes changes and leftovers; empty if there are none.
    QStringList damage() const;
    // Restores the original state, and ends remaining processes.
    void putBack();

private:
    QStringList survivors() const;

    QString m_folder, m_home;
    platform::UniqueFd m_bus, m_display;
};

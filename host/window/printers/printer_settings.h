// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// The program with which the user can add printers: the desktop's printer settings, or a browser with the web
// page of the local print server. The program itself asks the user to authenticate. A value.
struct PrinterSettings
{
    QString program; // path of the executable
    QStringList arguments;

    // The one that suits the desktop (XDG_CURRENT_DESKTOP), else the first that is installed; null if there
    // is none.
    static std::optional<PrinterSettings> find();
    // Starts the program, detached. False if it cannot be started.
    bool open() const;
};

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_settings.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cups/cups.h>

namespace host {

namespace {

struct Candidate
{
    const char *desktop; // null for any
    const char *program;
    const char *argument; // may be null
};

constexpr std::array candidates{
    Candidate{"GNOME", "gnome-control-center", "printers"},
    Candidate{"KDE", "systemsettings", "kcm_printer_manager"},
    Candidate{"KDE", "kcmshell6", "kcm_printer_manager"},
    Candidate{"KDE", "systemsettings5", "kcm_printer_manager"},
    Candidate{"KDE", "kcmshell5", "kcm_printer_manager"},
    Candidate{nullptr, "system-config-printer", nullptr},
};

// The settings of GNOME refuse to start on other desktops; those of KDE may lack the module for printers.
std::optional<PrinterSettings> installed(const Candidate &candidate, const QStringList &desktops)
{
    if (candidate.desktop && !desktops.contains(QLatin1String(candidate.desktop), Qt::CaseInsensitive))
        return std::nullopt;
    const QString program = QStandardPaths::findExecutable(QLatin1String(candidate.program));
    if (program.isEmpty())
        return std::nullopt;
    if (candidate.desktop == nullptr)
        return PrinterSettings{program, {}};
    const QString argument = QLatin1String(candidate.argument);
    const bool isModule = argument.startsWith(QLatin1String("kcm_"));
    if (isModule &&
        QStandardPaths::locate(QStandardPaths::ApplicationsLocation, argument + QStringLiteral(".desktop"))
            .isEmpty())
        return std::nullopt;
    return PrinterSettings{program, {argument}};
}

// The files of the page belong to the print server's package.
std::optional<PrinterSettings> webPage()
{
    const QByteArray server = cupsServer();
    const bool isLocal = server.startsWith('/') || server == "localhost";
    const std::array folders{"/usr/share/cups/doc-root", "/usr/share/cups/www", "/usr/share/doc/cups"};
    const bool hasPages = std::any_of(folders.begin(), folders.end(), [](const char *folder) {
        return QFileInfo::exists(QLatin1String(folder) + QStringLiteral("/index.html"));
    });
    const QString browser = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!isLocal || !hasPages || browser.isEmpty())
        return std::nullopt;
    return PrinterSettings{browser, {QStringLiteral("http://localhost:631/admin")}};
}

} // namespace

std::optional<PrinterSettings> PrinterSettings::find()
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
    for (const Candidate &candidate : candidates) {
        if (const auto settings = installed(candidate, desktops))
            return settings;
    }
    return webPage();
}

bool PrinterSettings::open() const
{
    return QProcess::startDetached(program, arguments);
}

} // namespace host

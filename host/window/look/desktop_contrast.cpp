// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/desktop_contrast.h"

#include "host/window/look/color_scheme.h"
#include "host/window/look/service_program.h"
#include "platform/background.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace host {

namespace {

constexpr int timeout = 5'000;            // milliseconds
constexpr qint64 longestFile = 64 * 1024; // maximum bytes to read from a settings.ini

QString schemeOfTheme(const QString &theme)
{
    if (!theme.startsWith(QLatin1String("HighContrast"), Qt::CaseInsensitive))
        return {};
    const bool isDark = theme.contains(QLatin1String("inverse"), Qt::CaseInsensitive) ||
                        theme.endsWith(QLatin1String("dark"), Qt::CaseInsensitive);
    return isDark ? highContrastDark : highContrast;
}

// The value of "gtk-theme-name" in a settings.ini; null if there is none.
QString themeIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> lines = file.read(longestFile).split('\n');
    for (const QByteArray &line : lines) {
        const qsizetype sign = line.indexOf('=');
        if (sign > 0 && line.left(sign).trimmed() == "gtk-theme-name")
            return QString::fromUtf8(line.mid(sign + 1).trimmed());
    }
    return {};
}

} // namespace

QString contrastSchemeOfTheme()
{
    if (qEnvironmentVariableIsSet("GTK_THEME"))
        return schemeOfTheme(qEnvironmentVariable("GTK_THEME"));
    const QString folder =
        qEnvironmentVariable("XDG_CONFIG_HOME", QDir::homePath() + QStringLiteral("/.config"));
    for (const char *file : {"/gtk-4.0/settings.ini", "/gtk-3.0/settings.ini"}) {
        if (const QString theme = themeIn(folder + QLatin1String(file)); !theme.isEmpty())
            return schemeOfTheme(theme);
    }
    return {};
}

void followDesktopContrast(QObject *receiver)
{
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") && !QFile::exists(socket))
        return;
    platform::startOnWorker(
        receiver,
        [program = serviceProgram()] {
            QProcess process;
            process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            process.start(program, {QStringLiteral("--color-scheme")}, QIODevice::ReadOnly);
            if (!process.waitForFinished(timeout)) {
                process.kill();
                process.waitForFinished(timeout);
                return QString();
            }
            return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
        },
        [](const QString &scheme) {
            if (scheme == highContrast || scheme == highContrastDark)
                applyColorScheme(scheme);
        });
}

} // namespace host

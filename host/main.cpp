// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/window_run.h"

#include <QApplication>
#include <QFile>

using namespace host;

namespace {

// Qt needs to know before it starts whether there will be a window.
void choosePlatform(int argc, char **argv)
{
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const bool pictureWithoutDisplay = takesScreenshot(argc, argv) && !hasDisplay;
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!chosen && (runsWithoutWindow(argc, argv) || pictureWithoutDisplay))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int run(const Arguments &arguments, QFile *out, QFile *err)
{
    CupsPrintSystem system;
    const QString folder = QApplication::applicationDirPath();
    Extensions extensions(arguments.bundles.isEmpty() ? Extensions::installedBundles(folder)
                                                      : arguments.bundles);
    if (arguments.needsWindow())
        return runWindow(arguments, system, extensions, out, err);
    ResultWriter writer(out, err);
    return BatchRun(arguments, system, extensions).run(&writer);
}

} // namespace

int main(int argc, char **argv)
{
    choosePlatform(argc, argv);
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("kelmar"));
    QApplication::setApplicationName(QStringLiteral("kelmar-print"));
    QApplication::setApplicationVersion(QStringLiteral(KELMAR_VERSION));
    QFile out, err;
    (void)out.open(stdout, QIODevice::WriteOnly);
    (void)err.open(stderr, QIODevice::WriteOnly);
    QString error;
    const auto arguments = parseArguments(QApplication::arguments(), &error);
    if (!arguments) {
        err.write("kelmar-print: " + error.toUtf8() + "\n");
        return ExitUsage;
    }
    if (arguments->help || arguments->version) {
        out.write(arguments->help ? helpText().toUtf8()
                                  : QByteArrayLiteral("kelmar-print " KELMAR_VERSION "\n"));
        return ExitSuccess;
    }
    if (!arguments->server.isEmpty())
        qputenv("CUPS_SERVER", arguments->server.toUtf8());
    return run(*arguments, &out, &err);
}

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/desktop_notification.h"
#include "host/service/door_service.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

using namespace host;

namespace {

// The program beside this one, as in a build folder, else in the folder that programs are installed in.
QString dialogProgram()
{
    const QString here = QCoreApplication::applicationDirPath();
    const QString beside = here + QStringLiteral("/kelmar-print");
    return QFileInfo(beside).isExecutable()
               ? beside
               : QFileInfo(here + QStringLiteral("/../bin/kelmar-print")).absoluteFilePath();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelmar-print-service"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELMAR_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens the print dialog for the print portal and for the queue of the dialog.\n"
                       "Started by the session bus."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption program(QStringLiteral("dialog-program"),
                                     QStringLiteral("The program to open dialogs with."),
                                     QStringLiteral("path"), dialogProgram());
    const QCommandLineOption idle(QStringLiteral("idle"),
                                  QStringLiteral("Leave after so many seconds without anything to do."),
                                  QStringLiteral("seconds"), QStringLiteral("30"));
    const QCommandLineOption notice(
        QStringLiteral("notify"),
        QStringLiteral("Show a notification, which comes on the input, and leave."));
    parser.addOptions({program, idle, notice});
    parser.process(app);
    if (parser.isSet(notice)) {
        QFile input;
        return input.open(stdin, QIODevice::ReadOnly) &&
                       showDesktopNotification(QDBusConnection::sessionBus(), input.readAll())
                   ? 0
                   : 1;
    }
    bool isNumber = false;
    const double seconds = parser.value(idle).toDouble(&isNumber);
    if (!isNumber || seconds < 0 || seconds > 1'000'000) {
        qWarning("--idle takes a number of seconds.");
        return 2;
    }
    const std::chrono::milliseconds idleTime(static_cast<qint64>(seconds * 1000));
    DoorService service(QDBusConnection::sessionBus(), parser.value(program), idleTime);
    return service.start() ? QCoreApplication::exec() : 1;
}

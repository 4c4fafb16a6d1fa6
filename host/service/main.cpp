// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/desktop_color_scheme.h"
#include "host/service/desktop_notification.h"
#include "host/service/door_service.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>
#include <QFileInfo>

#include <link.h>
#include <span>
#include <sys/mman.h>
#include <unistd.h>

using namespace host;

namespace {

constexpr unsigned longestAnswer = 5; // seconds for the session bus, as long as the dialog waits for it

// The program in the folder of this one, as in a build tree, else in the folder for installed programs.
QString dialogProgram()
{
    const QString here = QCoreApplication::applicationDirPath();
    const QString beside = here + QStringLiteral("/kelmar-print");
    return QFileInfo(beside).isExecutable()
               ? beside
               : QFileInfo(here + QStringLiteral("/../bin/kelmar-print")).absoluteFilePath();
}

// Releases the pages of one library that were read during start-up and are neither code nor data, mainly
// symbols and relocations. They are mapped from the file and are read again when needed.
int releaseConstants(dl_phdr_info *library, size_t, void *)
{
    const auto pageSize = static_cast<ElfW(Addr)>(::sysconf(_SC_PAGESIZE));
    for (const ElfW(Phdr) & part : std::span(library->dlpi_phdr, library->dlpi_phnum)) {
        if (part.p_type != PT_LOAD || part.p_flags != PF_R)
            continue;
        const ElfW(Addr) begin = (library->dlpi_addr + part.p_vaddr + pageSize - 1) & ~(pageSize - 1);
        const ElfW(Addr) end = (library->dlpi_addr + part.p_vaddr + part.p_filesz) & ~(pageSize - 1);
        if (begin < end)
            ::madvise(reinterpret_cast<void *>(begin), end - begin, MADV_DONTNEED);
    }
    return 0;
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
                                  QStringLiteral("Exit after this number of idle seconds."),
                                  QStringLiteral("seconds"), QStringLiteral("30"));
    const QCommandLineOption notice(QStringLiteral("notify"),
                                    QStringLiteral("Show the notification from standard input and exit."));
    const QCommandLineOption scheme(
        QStringLiteral("color-scheme"),
        QStringLiteral("Write the color scheme that the desktop's high-contrast setting asks for and exit."));
    parser.addOptions({program, idle, notice, scheme});
    parser.process(app);
    if (parser.isSet(scheme)) {
        ::alarm(longestAnswer); // the session bus may never answer, and the dialog may exit earlier
        std::puts(desktopContrastScheme(QDBusConnection::sessionBus()).constData());
        return 0;
    }
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
    if (!service.start())
        return 1;
    // The service runs as long as the user's session. Pages that were only used during start-up are a third
    // of its memory.
    ::dl_iterate_phdr(releaseConstants, nullptr);
    return QCoreApplication::exec();
}

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/private_network.h"

#include <QDir>
#include <QFile>

#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

QString failure(const char *what)
{
    return QStringLiteral("%1: %2").arg(QString::fromLatin1(what),
                                        QString::fromLocal8Bit(std::strerror(errno)));
}

QString bringLoopbackUp()
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request{};
    std::memcpy(request.ifr_name, "lo", sizeof "lo");
    request.ifr_flags = IFF_UP | IFF_RUNNING | IFF_MULTICAST;
    const bool up = ::ioctl(socket, SIOCSIFFLAGS, &request) == 0;
    const QString error = up ? QString() : failure("loopback");
    ::close(socket);
    return error;
}

} // namespace

QString enterPrivateNetwork()
{
    if (::unshare(CLONE_NEWNET) != 0)
        return failure("no network namespace");
    return bringLoopbackUp();
}

QString enterPrivateNetworkWithFiles(const QList<std::pair<QString, QString>> &files, const QString &emptied)
{
    if (::unshare(CLONE_NEWNET | CLONE_NEWNS) != 0)
        return failure("no network and mount namespace");
    QDir().mkpath(emptied);
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", QFile::encodeName(emptied).constData(), "tmpfs", 0, nullptr) != 0)
        return failure("mount");
    for (const auto &[file, place] : files) {
        const QByteArray from = QFile::encodeName(file);
        if (::mount(from.constData(), QFile::encodeName(place).constData(), nullptr, MS_BIND, nullptr) != 0)
            return failure(qPrintable(place));
    }
    return bringLoopbackUp();
}

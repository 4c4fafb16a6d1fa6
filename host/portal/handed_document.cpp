// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/handed_document.h"

#include "platform/descriptor_io.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QStandardPaths>

#include <cstring>
#include <sys/inotify.h>

namespace host {

namespace {

struct PortalText
{
    Q_DECLARE_TR_FUNCTIONS(PortalText)
};

// An application that writes endlessly must not fill the disk before the user has agreed to anything.
constexpr off_t longestStream = off_t{256} * 1024 * 1024;

// How long an application may leave its document incomplete: without any data, and in total. Each incomplete
// document counts against the limits of the service.
constexpr platform::Patience patience{std::chrono::minutes(1), std::chrono::minutes(10)};

// Not the folder for temporary files, which is often in memory.
std::string copyFolder()
{
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    const bool isUsable =
        !cache.isEmpty() && QDir().mkpath(cache) && ::access(QFile::encodeName(cache), W_OK | X_OK) == 0;
    return isUsable ? QFile::encodeName(cache).toStdString() : std::string("/var/tmp");
}

PrintError unreadable(int number)
{
    return {PrintError::Kind::Other,
            PortalText::tr("It cannot be read: %1.").arg(QString::fromLocal8Bit(std::strerror(number)))};
}

std::string pathOf(int fd)
{
    return "/proc/self/fd/" + std::to_string(fd);
}

// A separate open file description, so that its position is independent.
platform::UniqueFd reopened(int fd)
{
    return platform::UniqueFd(::open(pathOf(fd).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
}

} // namespace

platform::UniqueFd openHandedDocument(const platform::UniqueFd &given, PrintError *error)
{
    struct stat facts = {};
    if (!given || ::fstat(given.get(), &facts) != 0) {
        *error = unreadable(EBADF);
        return {};
    }
    const bool isFile = S_ISREG(facts.st_mode);
    if (!isFile && !S_ISFIFO(facts.st_mode) && !S_ISSOCK(facts.st_mode)) {
        *error = {PrintError::Kind::Other, PortalText::tr("It is not a file.")};
        return {};
    }
    if (isFile && facts.st_size > platform::longestDocument) {
        *error = {PrintError::Kind::Other, PortalText::tr("It is larger than 2 GB.")};
        return {};
    }
    platform::UniqueFd document = isFile ? reopened(given.get()) : platform::UniqueFd();
    if (!document) // a stream, or a file that only the other program may open
        document = platform::privateCopy(given.get(), copyFolder(), longestStream, &patience);
    if (!document) {
        *error = errno == EFBIG
                     ? PrintError{PrintError::Kind::Other, PortalText::tr("It is larger than 256 MB.")}
                     : unreadable(errno);
        return {};
    }
    if (::fstat(document.get(), &facts) == 0 && facts.st_size > 0)
        return document;
    *error = {PrintError::Kind::EmptyDocument, PortalText::tr("It is empty.")};
    return {};
}

DocumentWatch::DocumentWatch(int document) : m_events(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    if (document < 0 || !m_events ||
        ::inotify_add_watch(m_events.get(), pathOf(document).c_str(), IN_MODIFY | IN_ONESHOT) < 0)
        return;
    auto *notifier = new QSocketNotifier(m_events.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT changed();
    });
}

} // namespace host

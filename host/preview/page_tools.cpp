// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_tools.h"

#include "host/printing/file_name.h"
#include "platform/descriptor_io.h"

#include <QDir>
#include <QEventLoop>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

// Whether a confined program can open the file: without capabilities, root has the permissions of an ordinary
// user.
bool isReadConfined(const platform::UniqueFd &file)
{
    struct stat facts = {};
    return geteuid() != 0 || fstat(file.get(), &facts) != 0 || (facts.st_mode & S_IROTH) != 0 ||
           (facts.st_uid == 0 && (facts.st_mode & S_IRUSR) != 0);
}

} // namespace

PageTools PageTools::installed()
{
    // Filters are installed where the print system was configured to look for them.
    PageTools tools{{QStringLiteral("/usr/lib/cups/filter"), QStringLiteral("/usr/libexec/cups/filter"),
                     QStringLiteral("/usr/lib64/cups/filter")}};
    const QString path = qEnvironmentVariable("PATH", QStringLiteral("/usr/bin:/bin"));
    tools.folders += path.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return tools;
}

QString PageTools::path(const QString &program) const
{
    return QStandardPaths::findExecutable(program, folders);
}

SharedFile inMemory(const QByteArray &content)
{
    platform::UniqueFd file(memfd_create("pages", MFD_CLOEXEC));
    if (!file || ::write(file.get(), content.data(), static_cast<size_t>(content.size())) != content.size())
        return nullptr;
    return std::make_shared<const platform::UniqueFd>(std::move(file));
}

SharedFile openFile(const QString &path)
{
    platform::UniqueFd file(::open(fileNameToBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file && !isReadConfined(file))
        file = platform::privateCopy(file.get(), QDir::tempPath().toStdString(), platform::longestDocument);
    return file ? std::make_shared<const platform::UniqueFd>(std::move(file)) : nullptr;
}

void execUnless(QEventLoop *loop, const std::function<bool()> &stop)
{
    constexpr std::chrono::milliseconds pollInterval(50);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, loop, [&] {
        if (stop())
            loop->quit();
    });
    if (stop)
        poll.start(pollInterval);
    loop->exec();
}

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/preset_store.h"

#include "host/printing/file_name.h"
#include "host/printing/new_file.h"
#include "host/printing/preset_lines.h"
#include "platform/unique_fd.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <sys/file.h>
#include <sys/stat.h>

namespace host {

namespace {

struct StoreText
{
    Q_DECLARE_TR_FUNCTIONS(StoreText)
};

constexpr int mostTries = 20;          // attempts to write while other programs do so as well
constexpr int lockPatience = 5'000;    // milliseconds to wait for the holder of the lock
constexpr unsigned long lockLook = 20; // milliseconds between tries
constexpr qsizetype longestName = 100;
constexpr qint64 largestFile = 4 * 1024 * 1024; // bytes

PrintError problemWith(const QString &path, int number)
{
    const bool isDenied = number == EACCES || number == EPERM || number == EROFS;
    return {isDenied ? PrintError::Kind::NoPermission : PrintError::Kind::Other,
            StoreText::tr("The presets in “%1” cannot be read or changed: %2.")
                .arg(readableFileName(path), qt_error_string(number))};
}

std::optional<QByteArray> contentOf(int fd)
{
    QFile file;
    if (::lseek(fd, 0, SEEK_SET) < 0 || !file.open(fd, QIODevice::ReadOnly, QFile::DontCloseHandle))
        return std::nullopt;
    // In blocks: read(largestFile + 1) would allocate as much for each small file.
    constexpr qint64 block = 16 * 1024;
    QByteArray content;
    for (QByteArray part = file.read(block); !part.isEmpty(); part = file.read(block)) {
        content += part;
        if (content.size() > largestFile)
            break;
    }
    if (file.error() != QFile::NoError || content.size() > largestFile) {
        errno = content.size() > largestFile ? EFBIG : EIO;
        return std::nullopt;
    }
    return content;
}

struct OpenFile
{
    platform::UniqueFd fd; // none if the file does not exist yet
    QByteArray content;
};

std::optional<OpenFile> readFile(const QString &path, PrintError *error)
{
    OpenFile file;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd < 0 && errno == ENOENT)
        return file;
    file.fd = platform::UniqueFd(fd);
    const auto content = fd < 0 ? std::nullopt : contentOf(fd);
    if (!content) {
        *error = problemWith(path, errno);
        return std::nullopt;
    }
    file.content = *content;
    return file;
}

// The target of symbolic links, which are preserved.
QString realPath(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

// Accessible only by the user, as libcups creates it.
bool makeFolderOf(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    (void)QDir().mkpath(QFileInfo(folder).path());
    return ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0 || errno == EEXIST;
}

// A lock that all processes of this program hold while they change this file. None, with errno, if another
// process does not release it, for example because it was stopped.
class StoreLock
{
public:
    explicit StoreLock(const QString &path)
        : m_fd(::open(QFile::encodeName(path + QStringLiteral(".kelmar-lock")).constData(),
                      O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
    {
        if (!m_fd)
            return;
        const QDeadlineTimer deadline(lockPatience);
        while (::flock(m_fd.get(), LOCK_EX | LOCK_NB) != 0) {
            const int reason = errno;
            if ((reason != EWOULDBLOCK && reason != EINTR) || deadline.hasExpired()) {
                m_fd.reset();
                errno = reason;
                return;
            }
            QThread::msleep(lockLook);
        }
    }
    explicit operator bool() const { return static_cast<bool>(m_fd); }

private:
    platform::UniqueFd m_fd;
};

bool isSame(const std::optional<OpenFile> &file, const QByteArray &content)
{
    return file && file->content == content;
}

PrintError noSuchPreset(const QString &name)
{
    return {PrintError::Kind::BadValue,
            StoreText::tr("There is no preset called “%1”.").arg(readableFileName(name))};
}

bool holds(const QByteArray &content, const QString &queue, const QString &name)
{
    return presetNamed(presetsIn(content, queue), name) != nullptr;
}

// Whether another preset than `from` has the name `to`, in any letter case.
bool isTaken(const QByteArray &content, const QString &queue, const QString &from, const QString &to)
{
    const QList<Preset> presets = presetsIn(content, queue);
    return std::any_of(presets.begin(), presets.end(), [&](const Preset &preset) {
        return preset.name.compare(to, Qt::CaseInsensitive) == 0 && !isSamePreset(preset.name, from);
    });
}

} // namespace

bool isSamePreset(const QString &name, const QString &other)
{
    return fileNameToBytes(name).compare(fileNameToBytes(other), Qt::CaseInsensitive) == 0;
}

const Preset *presetNamed(const QList<Preset> &presets, const QString &name)
{
    const auto known = std::find_if(presets.begin(), presets.end(),
                                    [&](const Preset &preset) { return isSamePreset(preset.name, name); });
    return known == presets.end() ? nullptr : &*known;
}

PresetStore::Files PresetStore::filesOfCups()
{
    const QString system = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    Files files;
    files.allUsers = system + QStringLiteral("/lpoptions");
    files.users = QDir::homePath() + QStringLiteral("/.cups/lpoptions");
    files.writesForAllUsers = ::getuid() == 0;
    return files;
}

PresetStore::Files PresetStore::filesOfLastUsed()
{
    const QString state =
        qEnvironmentVariable("XDG_STATE_HOME", QDir::homePath() + QStringLiteral("/.local/state"));
    return {{}, state + QStringLiteral("/kelmar-print/last-used"), false, 0600};
}

std::optional<PresetStore::Names> PresetStore::names(PrintError *error) const
{
    const auto content = contents(error);
    return content ? std::optional(presetNamesIn(*content)) : std::nullopt;
}

std::optional<QList<Preset>> PresetStore::list(const QString &queue, PrintError *error) const
{
    const auto content = contents(error);
    return content ? std::optional(presetsIn(*content, queue)) : std::nullopt;
}

// The contents of all files, in sequence.
std::optional<QByteArray> PresetStore::contents(PrintError *error) const
{
    QByteArray content;
    for (const QString &path : {m_files.allUsers, m_files.users}) {
        if (path.isEmpty())
            continue;
        const auto file = readFile(path, error);
        if (!file)
            return std::nullopt;
        if (!content.isEmpty() && !content.endsWith('\n'))
            content += '\n';
        content += file->content;
    }
    return content;
}

QString PresetStore::fileOf(const QString &queue, const QString &name, PrintError *error) const
{
    for (const QString &path : {m_files.users, m_files.allUsers}) {
        const auto file = path.isEmpty() ? std::nullopt : readFile(path, error);
        if (*error)
            return {};
        if (file && holds(file->content, queue, name)) {
            // A user's change to a shared preset creates a preset of the user.
            const bool isMine = path == m_files.users || m_files.writesForAllUsers;
            return isMine ? path : m_files.users;
        }
    }
    return m_files.writesForAllUsers ? m_files.allUsers : m_files.users;
}

// Another program may write at the same time, either to the file that has just been replaced, or over the new
// file. Both are checked, and the change is repeated on the new content.
bool PresetStore::change(const QString &path, const Change &change, PrintError *error) const
{
    const QString target = realPath(path);
    if (!makeFolderOf(target)) {
        *error = problemWith(target, errno);
        return false;
    }
    const StoreLock lock(target);
    std::optional<OpenFile> earlier = lock ? readFile(target, error) : std::nullopt;
    for (int i = 0; earlier && i < mostTries; ++i) {
        const auto content = change(earlier->content, error);
        if (!content)
            return false;
        struct stat facts = {};
        const bool isThere = earlier->fd && ::fstat(earlier->fd.get(), &facts) == 0;
        NewFile fresh(QFile::encodeName(target), m_files.mode, isThere ? &facts : nullptr);
        if (!isThere && path != m_files.users)
            fresh.setMode(m_files.mode);
        if (!fresh.write(*content)) {
            *error = problemWith(target, errno);
            return false;
        }
        auto now = readFile(target, error);
        if (!isSame(now, earlier->content)) {
            earlier = std::move(now);
            continue;
        }
        if (!fresh.takePlace()) {
            *error = problemWith(target, errno);
            return false;
        }
        const auto late = earlier->fd ? contentOf(earlier->fd.get()) : std::optional(QByteArray());
        if (late && *late != earlier->content && !late->isEmpty()) {
            earlier = OpenFile{{}, *late};
            continue;
        }
        auto written = readFile(target, error);
        if (isSame(written, *content))
            return true;
        earlier = std::move(written);
    }
    if (!*error)
        *error = problemWith(target, lock ? EBUSY : errno);
    return false;
}

bool PresetStore::save(const QString &queue, const Preset &preset, PrintError *error) const
{
    const QString problem = preset.name.isEmpty() ? QString() : nameProblem(preset.name);
    if (!problem.isNull()) {
        *error = {PrintError::Kind::BadValue, problem};
        return false;
    }
    const QString path = fileOf(queue, preset.name, error);
    return !*error && change(
                          path,
                          [&](const QByteArray &content, PrintError *problem) {
                              return withPreset(content, queue, preset, problem);
                          },
                          error);
}

bool PresetStore::rename(const QString &queue, const QString &from, const QString &to,
                         PrintError *error) const
{
    const QString problem = nameProblem(to);
    if (!problem.isNull()) {
        *error = {PrintError::Kind::BadValue, problem};
        return false;
    }
    const QString path = fileOf(queue, from, error);
    const auto renamed = [&](const QByteArray &content, PrintError *problem) -> std::optional<QByteArray> {
        if (!holds(content, queue, from)) {
            // The change may have been made before another program's file was read.
            if (holds(content, queue, to))
                return content;
            *problem = noSuchPreset(from);
            return std::nullopt;
        }
        if (isTaken(content, queue, from, to)) {
            *problem = {PrintError::Kind::BadValue,
                        StoreText::tr("There is already a preset called “%1”.").arg(to)};
            return std::nullopt;
        }
        return renamedPreset(content, queue, from, to);
    };
    return !*error && change(path, renamed, error);
}

bool PresetStore::remove(const QString &queue, const QString &name, PrintError *error) const
{
    const QString path = fileOf(queue, name, error);
    if (*error)
        return false;
    const auto file = readFile(path, error);
    if (!file)
        return false;
    if (!holds(file->content, queue, name)) {
        const auto all = list(queue, error);
        const bool isOfAllUsers = all && presetNamed(*all, name);
        *error = isOfAllUsers ? PrintError{PrintError::Kind::NoPermission,
                                           StoreText::tr("“%1” is available to all users of this computer; "
                                                         "only an administrator can change it.")
                                               .arg(name)}
                              : noSuchPreset(name);
        return false;
    }
    return change(
        path,
        [&](const QByteArray &content, PrintError *) -> std::optional<QByteArray> {
            return withoutPreset(content, queue, name);
        },
        error);
}

QString PresetStore::nameProblem(const QString &name)
{
    const auto is = [&](auto test) { return std::any_of(name.begin(), name.end(), test); };
    if (name.isEmpty())
        return StoreText::tr("A preset needs a name.");
    if (name.toUtf8().size() > longestName)
        return StoreText::tr("The name is too long.");
    if (is([](QChar c) { return c.isSpace(); })) {
        QString other = name.simplified();
        return StoreText::tr("The name of a preset cannot contain spaces; use for example “%1”.")
            .arg(other.replace(QLatin1Char(' '), QLatin1Char('-')));
    }
    if (is([](QChar c) { return c.category() == QChar::Other_Control || !c.isPrint(); }) &&
        !is([](QChar c) { return c.isSurrogate(); }))
        return StoreText::tr("The name of a preset cannot contain control characters.");
    if (is([](QChar c) { return QStringLiteral("/\\#\"'=").contains(c); }))
        return StoreText::tr("The name of a preset cannot contain any of these characters: / \\ # \" ' =");
    return {};
}

} // namespace host

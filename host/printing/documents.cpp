// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/documents.h"

#include "host/printing/file_name.h"
#include "host/printing/gzip_file.h"
#include "host/printing/held_signals.h"
#include "platform/descriptor_io.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QMimeDatabase>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

struct DocumentText
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

constexpr qint64 spoolBlock = 64 * 1024;
constexpr int betweenStops = 50;       // milliseconds
constexpr int writerPatience = 5'000;  // milliseconds for a program to open the other end of a named pipe
constexpr qint64 headSize = 64 * 1024; // bytes used to determine the type of a document

bool isSvg(const QByteArray &head)
{
    QXmlStreamReader reader(head);
    return reader.readNextStartElement() && reader.name() == QLatin1String("svg");
}

// Image formats whose files look like text. EPS is PostScript to a print server.
bool isDrawingInText(const QMimeType &type, const QByteArray &head)
{
    const bool isDrawing = type.name().startsWith(QLatin1String("image/")) &&
                           type.inherits(QStringLiteral("text/plain")) &&
                           !type.inherits(QStringLiteral("application/postscript"));
    return isDrawing || isSvg(head);
}

void describeFormat(Document *document, const QByteArray &head)
{
    const QMimeType type = QMimeDatabase().mimeTypeForData(head);
    document->format = type.name();
    document->formatText = type.comment();
    document->otherFormats = type.aliases() + type.allAncestors();
    document->otherFormats.removeAll(QStringLiteral("application/octet-stream")); // carries no information
    document->isDrawingInText = isDrawingInText(type, head);
    if (document->isDrawingInText && !type.name().startsWith(QLatin1String("image/"))) {
        const QMimeType svg = QMimeDatabase().mimeTypeForName(QStringLiteral("image/svg+xml"));
        document->format = QStringLiteral("image/svg+xml");
        document->formatText = svg.comment();
    }
}

std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status = {};
    return ::stat(fileNameToBytes(path).constData(), &status) == 0 ? std::optional(status) : std::nullopt;
}

// Qt has no localised message for a missing folder.
QString temporaryFolder()
{
    const QString folder = QDir::tempPath();
    return folder.isEmpty() ? qEnvironmentVariable("TMPDIR") : folder;
}

// An unlinked file in the folder for temporary files; -1 with errno set.
int namelessFile(const QByteArray &folder)
{
    const int fd = ::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (fd >= 0)
        return fd;
    // Some file systems do not support unnamed files.
    QByteArray path = folder + "/kelmar-print-XXXXXX";
    const int named = ::mkostemp(path.data(), O_CLOEXEC);
    if (named >= 0)
        ::unlink(path.constData());
    return named;
}

PrintError spoolProblem(const QString &reason)
{
    return {PrintError::Kind::Other, DocumentText::tr("The document cannot be stored in the folder “%1”: %2.")
                                         .arg(temporaryFolder(), reason)};
}

// Waits until data or end of file can be read, or the deadline has passed; false if `stop` returns true.
bool waitForMore(int fd, const QDeadlineTimer &deadline, const StopWanted &stop)
{
    pollfd more = {fd, POLLIN, 0};
    while (!deadline.hasExpired()) {
        if (HeldSignals::isPending() || (stop && stop()))
            return false;
        const int ready = ::poll(&more, 1, betweenStops);
        if (ready > 0 || (ready < 0 && errno != EINTR))
            break; // reading reports the error
    }
    return true;
}

// A path through which this process can open an open file again.
QString pathOfHandle(int fd)
{
    return QStringLiteral("/proc/self/fd/%1").arg(fd);
}

QString nameOf(const QString &path)
{
    return readableFileName(path.section(QLatin1Char('/'), -1));
}

// The kernel generates some files on reading, as in /proc, and reports their size as 0.
bool isMadeWhenRead(const QString &path, const struct stat &status)
{
    char byte = 0;
    if (!S_ISREG(status.st_mode) || status.st_size != 0)
        return false;
    const platform::UniqueFd fd(::open(fileNameToBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    return fd && ::read(fd.get(), &byte, 1) == 1;
}

} // namespace

bool isStream(const QString &path)
{
    const auto status = statusOf(path);
    return status &&
           (isMadeWhenRead(path, *status) || S_ISFIFO(status->st_mode) || S_ISSOCK(status->st_mode) ||
            (S_ISCHR(status->st_mode) && path.startsWith(QLatin1String("/dev/stdin"))));
}

std::optional<Document> openDocument(const QString &path, PrintError *error)
{
    using Kind = PrintError::Kind;
    const QString shown = readableFileName(path);
    const auto status = statusOf(path);
    if (!status && (errno == ENOENT || errno == ENOTDIR)) {
        *error = {Kind::FileMissing, DocumentText::tr("There is no file “%1”.").arg(shown)};
        return std::nullopt;
    }
    if (status && S_ISDIR(status->st_mode)) {
        *error = {Kind::FileMissing, DocumentText::tr("“%1” is a folder, not a document.").arg(shown)};
        return std::nullopt;
    }
    const bool isRead = isStream(path); // can be read only once
    if (status && !S_ISREG(status->st_mode) && !isRead) {
        *error = {Kind::FileMissing, DocumentText::tr("“%1” is a device, not a document.").arg(shown)};
        return std::nullopt;
    }
    Document document;
    document.path = path;
    document.name = nameOf(path);
    if (isRead)
        return document;
    QFile file;
    QString problem;
    if (!openForReading(&file, path, &problem)) {
        const auto kind = errno == EACCES ? Kind::NoPermission : Kind::Other;
        *error = {kind, DocumentText::tr("The file “%1” cannot be read: %2.").arg(shown, problem)};
        return std::nullopt;
    }
    document.size = file.size();
    if (document.size == 0) {
        *error = {Kind::EmptyDocument, DocumentText::tr("The file “%1” is empty.").arg(shown)};
        return std::nullopt;
    }
    GzipFile contents(::fcntl(file.handle(), F_DUPFD_CLOEXEC, 0));
    describeFormat(&document, contents.read(headSize));
    document.isCompressed = contents.isCompressed();
    return document;
}

// The data of a stream in an unlinked file, which is freed with this object however the program ends.
struct DocumentList::Spool
{
    QString path;
    QFile copy;
    platform::UniqueFd source; // open while there may be more data; none for the standard input
    bool isWhole = false;

    bool begin(const QString &from, PrintError *error);
    bool take(QIODevice *input, PrintError *error, const StopWanted &stop);
};

// Does not wait for a writer when it opens a pipe.
bool DocumentList::Spool::begin(const QString &from, PrintError *error)
{
    path = from;
    const int fd = namelessFile(QFile::encodeName(temporaryFolder()));
    if (fd < 0 ||
        !copy.open(fd, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        *error = spoolProblem(qt_error_string(errno));
        return false;
    }
    if (path == QLatin1String("-"))
        return true;
    source = platform::UniqueFd(
        ::open(fileNameToBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (source)
        return true;
    *error = {PrintError::Kind::Other, DocumentText::tr("The file “%1” cannot be read: %2.")
                                           .arg(readableFileName(path), qt_error_string(errno))};
    return false;
}

// False with an error if nothing can be read, the data cannot be written completely, or `stop` returned true.
bool DocumentList::Spool::take(QIODevice *input, PrintError *error, const StopWanted &stop)
{
    const int fd = source ? source.get() : STDIN_FILENO;
    QByteArray block(spoolBlock, Qt::Uninitialized);
    while (true) {
        // A pipe that no program has opened for writing does not become readable; reading from it returns end
        // of file.
        const QDeadlineTimer deadline(source ? writerPatience : -1);
        if (!input && !waitForMore(fd, deadline, stop)) {
            *error = {PrintError::Kind::Cancelled, DocumentText::tr("Printing was canceled.")};
            return false;
        }
        const qint64 count = input ? input->read(block.data(), block.size())
                                   : ::read(fd, block.data(), static_cast<size_t>(block.size()));
        if (!input && count < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (!input && count < 0) {
            *error = {PrintError::Kind::Other,
                      DocumentText::tr("The standard input cannot be read: %1.").arg(qt_error_string(errno))};
            return false;
        }
        if (count <= 0)
            break;
        if (!platform::writeAll(copy.handle(), {block.constData(), static_cast<size_t>(count)})) {
            *error = spoolProblem(qt_error_string(errno));
            return false;
        }
    }
    const bool isInput = !source;
    isWhole = true;
    source.reset();
    if (copy.size() > 0)
        return true;
    *error = {PrintError::Kind::EmptyDocument,
              isInput ? DocumentText::tr("Nothing came from the standard input.")
                      : DocumentText::tr("Nothing was written into “%1”.").arg(readableFileName(path))};
    return false;
}

DocumentList::DocumentList() = default;
DocumentList::~DocumentList() = default;

bool DocumentList::open(const QStringList &paths, QIODevice *input, PrintError *error, const StopWanted &stop)
{
    const std::lock_guard opening(m_opening);
    QList<Document> opened;
    for (const QString &path : paths) {
        const bool isKept = path == QLatin1String("-") || m_spools.count(path) > 0 || isStream(path);
        const auto document = isKept ? openOne(path, input, error, stop) : openDocument(path, error);
        if (!document)
            return false;
        opened.append(*document);
    }
    const std::lock_guard reading(m_reading);
    m_documents = opened;
    return true;
}

QList<Document> DocumentList::documents() const
{
    const std::lock_guard reading(m_reading);
    return m_documents;
}

// A stream is read once: all later calls use the copy, which continues where a previous call was stopped.
std::optional<Document> DocumentList::openOne(const QString &path, QIODevice *input, PrintError *error,
                                              const StopWanted &stop)
{
    const bool isInput = path == QLatin1String("-");
    std::unique_ptr<Spool> &spool = m_spools[path];
    if (!spool) {
        auto begun = std::make_unique<Spool>();
        if (!begun->begin(path, error))
            return std::nullopt;
        spool = std::move(begun);
    }
    if (!spool->isWhole && !spool->take(isInput ? input : nullptr, error, stop)) {
        if (error->kind != PrintError::Kind::Cancelled)
            spool.reset();
        return std::nullopt;
    }
    auto document = openDocument(pathOfHandle(spool->copy.handle()), error);
    if (document)
        document->name = isInput ? DocumentText::tr("Standard input") : nameOf(path);
    return document;
}

QString DocumentList::title() const
{
    const QList<Document> all = documents();
    return all.isEmpty() ? QString() : all.first().name;
}

} // namespace host

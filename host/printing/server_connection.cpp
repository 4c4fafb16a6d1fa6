// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/server_connection.h"

#include <QCoreApplication>
#include <QIODevice>

#include <algorithm>
#include <utility>

#include <sys/socket.h>

namespace host {

namespace {

struct ServerText
{
    Q_DECLARE_TR_FUNCTIONS(ServerText)
};

constexpr qint64 blockSize = 64 * 1024;
constexpr char basicScheme[] = "Basic";
constexpr int betweenLooks = 1'000; // milliseconds between checks whether to continue waiting
constexpr int mostLogins = 3;       // for requests that the server refuses only after reading them

bool isErrorStatus(http_status_t status)
{
    return status >= HTTP_STATUS_BAD_REQUEST;
}

// A server may send any number, but not all of them are values of the type.
http_status_t statusOf(int number)
{
    const bool isOfLibcups =
        number == HTTP_STATUS_ERROR ||
        (number >= HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED && number <= HTTP_STATUS_CUPS_PKI_ERROR);
    const bool isKnown = isOfLibcups || (number >= HTTP_STATUS_NONE && number < 600);
    return isKnown ? static_cast<http_status_t>(number) : HTTP_STATUS_SERVER_ERROR;
}

// Whether a number belongs to one of the classes of statuses: success, client error, server error.
bool isIppStatus(int status)
{
    const int kind = status >> 8;
    return kind == 0 || kind == 4 || kind == 5;
}

// The server's message; the text of the status if there is none, or if it only reports success.
QString detailOf(ipp_t *answer, int status)
{
    ipp_attribute_t *message = answer ? ippFindAttribute(answer, "status-message", IPP_TAG_TEXT) : nullptr;
    const QString words = message ? QString::fromUtf8(ippGetString(message, 0, nullptr)) : QString();
    return words.isEmpty() || words.startsWith(QLatin1String("successful-ok"))
               ? QString::fromUtf8(ippErrorString(static_cast<ipp_status_t>(status)))
               : words;
}

PrintError refusedLogin(const QString &printer)
{
    return {PrintError::Kind::NotAuthorised,
            printer.isEmpty()
                ? ServerText::tr("The print server %1 requires a user name and a password.")
                      .arg(ServerConnection::serverName())
                : ServerText::tr("The printer “%1” requires a user name and a password.").arg(printer)};
}

} // namespace

// libcups calls a function of the thread for passwords. Outside of requests this is a function that declines,
// since the default would prompt on the terminal.
class LoginScope
{
public:
    explicit LoginScope(ServerConnection *connection)
    {
        if (connection->m_login->given)
            cupsSetUser(connection->m_login->given->user.toUtf8().constData());
        cupsSetPasswordCB2([](const char *, http_t *, const char *, const char *,
                              void *self) { return static_cast<ServerConnection *>(self)->nextPassword(); },
                           connection);
    }
    ~LoginScope() { ServerConnection::disablePrompts(); }
    LoginScope(const LoginScope &) = delete;
    LoginScope &operator=(const LoginScope &) = delete;
};

struct ServerConnection::Upload
{
    QIODevice *document;
    const std::function<void(qint64)> &progress;
    qint64 start = 0;
};

bool Reply::succeeded() const
{
    return outcome == Outcome::Answered && status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

PrintError Reply::error(const QString &printer) const
{
    using Kind = PrintError::Kind;
    const QString server = ServerConnection::serverName();
    switch (outcome) {
    case Outcome::NotSent:
        return {Kind::ServerAway, ServerText::tr("The print server %1 cannot be reached.").arg(server)};
    case Outcome::Lost:
        if (wasGivenUp)
            return {Kind::Cancelled, ServerText::tr("Printing was canceled.")};
        if (wasSilent)
            return {Kind::ConnectionLost,
                    ServerText::tr("The print server %1 has stopped answering.").arg(server)};
        return {Kind::ConnectionLost,
                wasGarbled ? ServerText::tr("The print server %1 sent a response that cannot be interpreted.")
                                 .arg(server)
                           : ServerText::tr("The connection to the print server %1 was lost.").arg(server)};
    case Outcome::Stopped:
        return {Kind::Cancelled, ServerText::tr("Printing was canceled.")};
    case Outcome::Refused:
        if (httpStatus == HTTP_STATUS_UNAUTHORIZED || httpStatus == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED)
            return refusedLogin(printer);
        if (httpStatus == HTTP_STATUS_FORBIDDEN)
            return {Kind::NotAuthorised, ServerText::tr("The print server %1 does not allow this (%2).")
                                             .arg(server, QString::fromUtf8(::httpStatus(httpStatus)))};
        return {Kind::Other, ServerText::tr("The print server %1 refused the request (%2).")
                                 .arg(server, QString::fromUtf8(::httpStatus(httpStatus)))};
    case Outcome::Answered:
        break;
    }
    const QString detail = detailOf(message.get(), status);
    switch (status) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        if (!printer.isEmpty())
            return {Kind::NoSuchPrinter, ServerText::tr("There is no printer called “%1”.").arg(printer)};
        return {Kind::NoPrinters, ServerText::tr("No printer has been set up.")};
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return {Kind::QueueRejecting,
                ServerText::tr("The printer “%1” is not accepting jobs at the moment.").arg(printer)};
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_ACCOUNT_AUTHORIZATION_FAILED:
    case IPP_STATUS_ERROR_ACCOUNT_CLOSED:
    case IPP_STATUS_ERROR_ACCOUNT_LIMIT_REACHED:
        return {Kind::NotAuthorised,
                ServerText::tr("You are not allowed to print to “%1” (%2).").arg(printer, detail)};
    case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
        return {Kind::UnsupportedFormat,
                ServerText::tr("The printer “%1” cannot print documents of this type.").arg(printer)};
    default:
        return {Kind::Other, ServerText::tr("The print server reports: %1").arg(detail)};
    }
}

ServerConnection::ServerConnection(LoginKeeper *login) : m_login(login) {}

ServerConnection::ServerConnection(LoginKeeper *login, HttpPointer unopened)
    : m_login(login), m_unopened(std::move(unopened)), m_isToPrinter(true)
{
}

ServerConnection::~ServerConnection() = default;

void ServerConnection::disablePrompts()
{
    cupsSetPasswordCB2(
        [](const char *, http_t *, const char *, const char *, void *) -> const char * { return nullptr; },
        nullptr);
}

QString ServerConnection::serverName()
{
    return QString::fromUtf8(cupsServer());
}

bool ServerConnection::connect()
{
    if (m_http)
        return true;
    m_offeredLogin = false;
    m_http = m_isToPrinter ? std::move(m_unopened)
                           : HttpPointer(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                                      cupsEncryption(), 1, 0, nullptr)); // not connected yet
    if (!m_http)
        return false;
    const auto moves = [](http_t *, void *self) {
        return static_cast<ServerConnection *>(self)->mayContinue() ? 1 : 0;
    };
    httpSetTimeout(m_http.get(), betweenLooks / 1000.0, moves, this);
    if (!open()) {
        m_http.reset();
        return false;
    }
    m_isEncrypted = httpIsEncrypted(m_http.get()) != 0;
    if (!m_login->accepted.isEmpty())
        httpSetAuthString(m_http.get(), basicScheme, m_login->accepted.constData());
    return true;
}

// In short attempts, since libcups does not check whether to continue meanwhile. An attempt that ends early
// has been refused.
bool ServerConnection::open()
{
    const QDeadlineTimer deadline(m_login->patience.connectTime);
    m_idle.start();
    while (mayContinue() && !deadline.hasExpired()) {
        const int time = static_cast<int>(std::min<qint64>(betweenLooks, deadline.remainingTime()));
        const QDeadlineTimer end(time);
        if (httpReconnect2(m_http.get(), time, nullptr) == 0) {
            m_idle.restart();
            return true;
        }
        if (!end.hasExpired())
            break;
    }
    return false;
}

// libcups reconnects by itself, so the kernel's cookie of the socket identifies the connection.
quint64 ServerConnection::number() const
{
    quint64 cookie = 0;
    socklen_t size = sizeof cookie;
    const bool isKnown =
        m_http && getsockopt(httpGetFd(m_http.get()), SOL_SOCKET, SO_COOKIE, &cookie, &size) == 0;
    return isKnown ? cookie : 0;
}

// Other schemes use a challenge of the server, which differs each time.
void ServerConnection::keepLogin()
{
    const QByteArray login = httpGetAuthString(m_http.get());
    const QByteArray prefix = QByteArray(basicScheme) + ' ';
    if (login.startsWith(prefix))
        m_login->accepted = login.mid(prefix.size());
}

bool ServerConnection::mayContinue()
{
    return !isSilent() && !isStopped();
}

const char *ServerConnection::nextPassword()
{
    const bool again = m_offeredLogin;
    if (again || !m_login->given) {
        const QString user = QString::fromUtf8(cupsUser());
        m_isEncrypted |= httpIsEncrypted(m_http.get()) != 0; // the server may have asked for TLS meanwhile
        const bool isInClear = !m_isEncrypted && !httpAddrLocalhost(httpGetAddress(m_http.get()));
        m_login->given =
            m_login->prompt ? m_login->prompt({serverName(), user, again, isInClear}) : std::nullopt;
        m_idle.restart(); // the user's time does not count
    }
    if (!m_login->given)
        return nullptr;
    m_offeredLogin = true;
    cupsSetUser(m_login->given->user.toUtf8().constData());
    m_password = m_login->given->password.toUtf8();
    return m_password.constData();
}

Reply ServerConnection::ask(IppPointer request, const QByteArray &resource)
{
    return exchange(std::move(request), resource, nullptr);
}

Reply ServerConnection::send(IppPointer request, const QByteArray &resource, QIODevice *document,
                             const std::function<void(qint64)> &progress)
{
    Upload upload{document, progress, document->pos()};
    return exchange(std::move(request), resource, &upload);
}

Reply ServerConnection::exchange(IppPointer request, const QByteArray &resource, Upload *upload)
{
    const LoginScope scope(this);
    Reply reply;
    for (int attempt = 0; attempt < mostLogins; ++attempt) {
        if (!connect()) {
            reply = {};
            if (isStopped())
                reply.outcome = Reply::Outcome::Stopped;
            return reply;
        }
        m_idle.restart();
        reply = exchangeOnce(request.get(), resource, upload);
        if (reply.outcome == Reply::Outcome::Lost) {
            reply.wasGivenUp = isStopped();
            reply.wasSilent = isSilent();
        }
        if (reply.outcome != Reply::Outcome::Answered && reply.httpStatus != HTTP_STATUS_UNAUTHORIZED)
            m_http.reset(); // further data on the connection belongs to this request
        // Refused because of a missing login, which libcups has by now; the server has not processed the
        // request.
        const bool isWorthAnother = reply.outcome == Reply::Outcome::Refused && reply.wasSentWhole &&
                                    reply.httpStatus == HTTP_STATUS_UNAUTHORIZED;
        if (!isWorthAnother || (upload && !upload->document->seek(upload->start)))
            break;
    }
    return reply;
}

Reply ServerConnection::exchangeOnce(ipp_t *request, const QByteArray &resource, Upload *upload)
{
    Reply reply;
    const size_t length = upload ? CUPS_LENGTH_VARIABLE : ippLength(request);
    const http_status_t status =
        statusOf(cupsSendRequest(m_http.get(), request, resource.constData(), length));
    if (status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_OK) {
        reply.httpStatus = status;
        if (status == HTTP_STATUS_SERVICE_UNAVAILABLE)
            reply.outcome = Reply::Outcome::NotSent;
        else
            reply.outcome = isErrorStatus(status) ? Reply::Outcome::Refused : Reply::Outcome::Lost;
        if (reply.outcome == Reply::Outcome::Lost && isStopped())
            reply.outcome = Reply::Outcome::Stopped;
        return reply;
    }
    if (upload && !writeDocument(upload, &reply))
        return reply;
    if (upload && httpWrite2(m_http.get(), "", 0) < 0) { // end of the document
        reply.outcome = Reply::Outcome::Lost;
        return reply;
    }
    reply.wasSentWhole = true;
    m_idle.restart();
    readAnswer(request, resource, &reply);
    return reply;
}

// False, with the reply's outcome set, if the document was not sent completely. The request is then left
// incomplete, so that the server discards it.
bool ServerConnection::writeDocument(Upload *upload, Reply *reply)
{
    QByteArray block(blockSize, Qt::Uninitialized);
    qint64 sent = 0;
    while (true) {
        if (isStopped()) {
            reply->outcome = Reply::Outcome::Stopped;
            return false;
        }
        const qint64 count = upload->document->read(block.data(), block.size());
        if (count < 0)
            reply->outcome = Reply::Outcome::Stopped;
        if (count <= 0)
            return count == 0;
        const http_status_t status =
            statusOf(cupsWriteRequestData(m_http.get(), block.constData(), static_cast<size_t>(count)));
        if (status != HTTP_STATUS_CONTINUE) {
            reply->httpStatus = status;
            reply->outcome = isErrorStatus(status) ? Reply::Outcome::Refused : Reply::Outcome::Lost;
            if (reply->outcome == Reply::Outcome::Lost && isStopped())
                reply->outcome = Reply::Outcome::Stopped;
            return false;
        }
        m_idle.restart();
        sent += count;
        if (upload->progress)
            upload->progress(sent);
    }
}

void ServerConnection::readAnswer(ipp_t *request, const QByteArray &resource, Reply *reply)
{
    do
        reply->httpStatus = statusOf(httpUpdate(m_http.get()));
    while (reply->httpStatus == HTTP_STATUS_CONTINUE && mayContinue());
    if (reply->httpStatus == HTTP_STATUS_OK) {
        reply->message = readMessage();
        reply->wasGarbled = !reply->message;
    } else if (reply->httpStatus == HTTP_STATUS_UNAUTHORIZED) {
        reply->httpStatus = authenticate(resource);
    }
    const int status = reply->message ? int(ippGetStatusCode(reply->message.get())) : -1;
    if (isIppStatus(status) && ippGetRequestId(reply->message.get()) == ippGetRequestId(request)) {
        reply->outcome = Reply::Outcome::Answered;
        keepLogin();
        reply->status = status;
        return;
    }
    // A server that fails while processing a request (5xx) may have performed it.
    const bool isRefusal =
        (reply->httpStatus >= HTTP_STATUS_BAD_REQUEST && reply->httpStatus < HTTP_STATUS_SERVER_ERROR) ||
        reply->httpStatus == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
    reply->outcome = isRefusal ? Reply::Outcome::Refused : Reply::Outcome::Lost;
    reply->wasGarbled |=
        reply->message || httpError(m_http.get()) == EINVAL || reply->httpStatus >= HTTP_STATUS_SERVER_ERROR;
    reply->message.reset();
}

// Null if the response is malformed or endless: libcups's own function would read as long as data arrives.
IppPointer ServerConnection::readMessage()
{
    struct Source
    {
        ServerConnection *server;
        qint64 left;
    } source{this, longestAnswer};
    const auto read = [](void *context, ipp_uchar_t *buffer, size_t size) -> ssize_t {
        auto *from = static_cast<Source *>(context);
        from->left -= static_cast<qint64>(size);
        size_t done = 0;
        while (done < size && from->left >= 0 && from->server->mayContinue()) {
            const ssize_t count =
                httpRead2(from->server->m_http.get(), reinterpret_cast<char *>(buffer) + done, size - done);
            if (count <= 0)
                break;
            done += static_cast<size_t>(count);
            from->server->m_idle.restart();
        }
        return done == size ? static_cast<ssize_t>(size) : -1;
    };
    IppPointer message(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippReadIO(&source, read, 1, nullptr, message.get());
    return state == IPP_STATE_DATA ? std::move(message) : nullptr;
}

// Obtains a login for the next request, on a separate connection. Returns the status of the refusal, or that
// there is no login.
http_status_t ServerConnection::authenticate(const QByteArray &resource)
{
    if (cupsDoAuthentication(m_http.get(), "POST", resource.constData()) != 0)
        return HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
    open();
    return HTTP_STATUS_UNAUTHORIZED;
}

http_status_t ServerConnection::requestFile(const QByteArray &resource)
{
    for (int attempt = 0; attempt < 2 * mostLogins; ++attempt) { // libcups sends each login twice
        httpClearFields(m_http.get());
        if (const char *login = httpGetAuthString(m_http.get()))
            httpSetField(m_http.get(), HTTP_FIELD_AUTHORIZATION, login);
        if (httpGet(m_http.get(), resource.constData()) != 0)
            return HTTP_STATUS_ERROR;
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (status == HTTP_STATUS_CONTINUE && mayContinue())
            status = statusOf(httpUpdate(m_http.get()));
        if (status != HTTP_STATUS_UNAUTHORIZED)
            return status;
        httpFlush(m_http.get());
        if (cupsDoAuthentication(m_http.get(), "GET", resource.constData()) != 0)
            return HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        if (!open())
            return HTTP_STATUS_ERROR;
    }
    return HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
}

std::optional<QByteArray> ServerConnection::fetch(const QByteArray &resource, qint64 limit, PrintError *error)
{
    const LoginScope scope(this);
    Reply reply;
    if (!connect()) {
        *error = reply.error({});
        return std::nullopt;
    }
    m_idle.restart();
    reply.httpStatus = requestFile(resource);
    QByteArray content;
    QByteArray block(blockSize, Qt::Uninitialized);
    while (reply.httpStatus == HTTP_STATUS_OK && content.size() <= limit) {
        const auto count = httpRead2(m_http.get(), block.data(), static_cast<size_t>(block.size()));
        if (count <= 0)
            break;
        m_idle.restart();
        content.append(block.constData(), count);
    }
    // The connection is idle again when the complete file has been received.
    const bool isWhole = httpGetState(m_http.get()) == HTTP_STATE_WAITING && content.size() <= limit;
    if (reply.httpStatus == HTTP_STATUS_OK && isWhole) {
        keepLogin();
        return content;
    }
    m_http.reset();
    if (reply.httpStatus == HTTP_STATUS_NOT_FOUND)
        return std::nullopt;
    reply.outcome = isErrorStatus(reply.httpStatus) ? Reply::Outcome::Refused : Reply::Outcome::Lost;
    reply.wasSilent = isSilent();
    *error = reply.error({});
    if (content.size() > limit)
        *error = {PrintError::Kind::Other,
                  ServerText::tr("The print server %1 sends a file of more than %2 megabytes.")
                      .arg(serverName())
                      .arg(limit / (1024 * 1024))};
    return std::nullopt;
}

} // namespace host

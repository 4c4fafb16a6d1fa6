// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/cups_handles.h"
#include "host/printing/login.h"
#include "host/printing/print_error.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QString>

#include <functional>
#include <optional>

class QIODevice;

namespace host {

// The result of one request.
struct Reply
{
    enum class Outcome {
        NotSent,  // no connection: the server has received nothing
        Answered, // a well-formed response, with `status`
        Refused,  // refused by the server's HTTP layer, with `httpStatus`: nothing was done
        Lost,     // the connection broke, or the response was malformed
        Stopped   // stopped by the caller, or because the document could not be read
    };
    Outcome outcome = Outcome::NotSent;
    bool wasSentWhole = false;            // sent completely: the server may have acted on it
    bool wasGarbled = false;              // a malformed response was received
    bool wasSilent = false;               // lost, because no data was transferred for too long
    bool wasGivenUp = false;              // lost, because the caller stopped it
    int status = IPP_STATUS_CUPS_INVALID; // an ipp_status_t; a server may send any number
    http_status_t httpStatus = HTTP_STATUS_ERROR;
    IppPointer message; // if answered

    bool succeeded() const;
    // The error of a failed request. `printer` is the name known to the user, or empty if the request was not
    // about one printer.
    PrintError error(const QString &printer) const;
};

// A connection to the print server from CUPS_SERVER or client.conf, for a short sequence of requests, since
// the server closes idle connections. Opened by the first request and again after each failure, and closed
// with the object. Results are based only on the response to a request, never on the state that libcups keeps
// of earlier requests. May be used on any thread, by one at a time. Each call blocks at most for the time to
// connect, and then as long as data is transferred.
class ServerConnection
{
public:
    static constexpr qint64 longestAnswer = 16 * 1024 * 1024; // bytes; a busy queue's jobs are some 100 KB

    explicit ServerConnection(LoginKeeper *login); // borrowed
    // A connection to a printer, which is opened once. `unopened` is null if the printer has no address.
    ServerConnection(LoginKeeper *login, HttpPointer unopened);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    // Checked between blocks and once a second while no data is transferred; true stops the request.
    void setStop(std::function<bool()> stop) { m_stop = std::move(stop); }
    // The time when the server counts as not responding. Never, unless it is set.
    void setDeadline(const QDeadlineTimer &deadline) { m_deadline = deadline; }

    Reply ask(IppPointer request, const QByteArray &resource);
    // The same with a document appended, read from the device's current position to its end. `progress`
    // receives the number of bytes sent so far.
    Reply send(IppPointer request, const QByteArray &resource, QIODevice *document,
               const std::function<void(qint64)> &progress = {});
    // Downloads a file of at most `limit` bytes from the server. Null without an error if it does not exist.
    std::optional<QByteArray> fetch(const QByteArray &resource, qint64 limit, PrintError *error);

    // Identifies the connection: a different number each time it is opened; 0 while it is closed.
    quint64 number() const;
    // For direct calls of libcups; null if the server cannot be reached.
    http_t *handle() { return connect() ? m_http.get() : nullptr; }
    // Prevents libcups from prompting on the terminal in calls on this thread that do not use this class.
    static void disablePrompts();
    // The server's name for display.
    static QString serverName();

private:
    friend class LoginScope;
    struct Upload;

    bool connect();
    bool open();
    Reply exchange(IppPointer request, const QByteArray &resource, Upload *upload);
    Reply exchangeOnce(ipp_t *request, const QByteArray &resource, Upload *upload);
    bool writeDocument(Upload *upload, Reply *reply);
    void readAnswer(ipp_t *request, const QByteArray &resource, Reply *reply);
    IppPointer readMessage();
    http_status_t authenticate(const QByteArray &resource);
    http_status_t requestFile(const QByteArray &resource);
    const char *nextPassword();
    void keepLogin();
    bool mayContinue();
    bool isStopped() const { return m_stop && m_stop(); }
    bool isSilent() const
    {
        return m_idle.elapsed() >= m_login->patience.idleTime || m_deadline.hasExpired();
    }

    LoginKeeper *m_login;
    HttpPointer m_http;
    HttpPointer m_unopened; // to a printer
    bool m_isToPrinter = false;
    std::function<bool()> m_stop;
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    QElapsedTimer m_idle;
    bool m_offeredLogin = false;
    bool m_isEncrypted = false; // or was, if the server has closed it; libcups reconnects in the same way
    QByteArray m_password;      // libcups keeps the pointer until the next prompt
};

} // namespace host

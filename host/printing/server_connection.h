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

// What became of one request.
struct Reply
{
    enum class Fate {
        NotSent,  // no connection: the server knows nothing of it
        Answered, // well-formed, with `status`
        Refused,  // by the server's HTTP side, with `httpStatus`: nothing was done
        Lost,     // the connection broke, or what came back was no answer
        Stopped   // from here, on purpose or because the document could not be read
    };
    Fate fate = Fate::NotSent;
    bool wasSentWhole = false;            // all of it was handed over: the server may have acted on it
    bool wasGarbled = false;              // something came back
    bool wasSilent = false;               // lost, because nothing moved for too long
    bool wasGivenUp = false;              // lost, because the caller gave up
    int status = IPP_STATUS_CUPS_INVALID; // an ipp_status_t; a server may send any number
    http_status_t httpStatus = HTTP_STATUS_ERROR;
    IppPointer message; // when answered

    bool succeeded() const;
    // Why it did not, in words. `printer` is the name the user knows it by, or empty when the request was not
    // about one printer.
    PrintError error(const QString &printer) const;
};

// A connection to the print server of CUPS_SERVER or client.conf, for a few requests that follow on each
// other: an idle one is closed by the server. Opened by the first request, again after each failure, and
// closed with the object. What is believed about a request is what came back for it, never what libcups
// remembers of an earlier one. May be used on any thread, one at a time; every call blocks, at most for the
// time to connect and then for as long as something moves.
class ServerConnection
{
public:
    static constexpr qint64 longestAnswer =
        16 * 1024 * 1024; // bytes; the jobs of a busy queue are some 100 KB

    explicit ServerConnection(LoginKeeper *login); // borrowed
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    // Looked at between blocks and once a second while nothing moves; true ends what is under way.
    void setStop(std::function<bool()> stop) { m_stop = std::move(stop); }
    // When the server counts as silent, however long it has been. Never, unless it is set.
    void setDeadline(const QDeadlineTimer &deadline) { m_deadline = deadline; }

    Reply ask(IppPointer request, const QByteArray &resource);
    // The same with a document behind it, read from where the device stands to its end. `progress` gets the
    // bytes sent so far.
    Reply send(IppPointer request, const QByteArray &resource, QIODevice *document,
               const std::function<void(qint64)> &progress = {});
    // A file of the server, of at most `limit` bytes. Null without an error where there is none.
    std::optional<QByteArray> fetch(const QByteArray &resource, qint64 limit, PrintError *error);

    // Which connection it is: each time it is opened it gets another number. 0 while it is closed.
    quint64 number() const;
    // For libcups's own calls; null when the server cannot be reached.
    http_t *handle() { return connect() ? m_http.get() : nullptr; }
    // Keeps libcups from asking on the terminal in calls that are made without this class, on this thread.
    static void askNobody();
    // The server's name for people.
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
    bool goesOn();
    bool isStopped() const { return m_stop && m_stop(); }
    bool isSilent() const
    {
        return m_idle.elapsed() >= m_login->patience.idleTime || m_deadline.hasExpired();
    }

    LoginKeeper *m_login;
    HttpPointer m_http;
    std::function<bool()> m_stop;
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    QElapsedTimer m_idle;
    bool m_offeredLogin = false;
    QByteArray m_password; // libcups keeps the pointer until it is asked again
};

} // namespace host

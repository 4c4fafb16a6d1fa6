// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

#include <atomic>
#include <functional>
#include <thread>

// A device on UDP port 161 of a loopback address that answers as the test says, in a thread of its own. Lives
// as long as the object. The handler runs in that thread.
class UdpResponder
{
public:
    // A datagram to send back; `from` is another loopback address to send it from.
    struct Reply
    {
        QByteArray bytes;
        const char *from = nullptr;
    };
    using Handler = std::function<QList<Reply>(const QByteArray &request)>;

    UdpResponder(const char *address, Handler handler);
    ~UdpResponder();
    UdpResponder(const UdpResponder &) = delete;
    UdpResponder &operator=(const UdpResponder &) = delete;

    bool isListening() const { return m_socket >= 0; }
    // Datagrams that arrived.
    int requestCount() const { return m_requestCount; }

private:
    void run();

    Handler m_handler;
    int m_socket = -1;
    int m_stop = -1;
    std::atomic<int> m_requestCount = 0;
    std::thread m_thread;
};

// The response to an SNMP request of one variable, from which a test changes what it wants to be wrong.
struct SnmpReply
{
    static constexpr unsigned char integer = 0x02, octetString = 0x04, noSuchInstance = 0x81;

    // Of a well-formed request; the value is no such instance.
    explicit SnmpReply(const QByteArray &request);
    SnmpReply &withString(const QByteArray &text);
    SnmpReply &withInteger(char number);
    QByteArray encoded() const;

    QByteArray version, community;
    QByteArray requestId;
    QByteArray oid; // BER, without tag and length
    char errorStatus = 0;
    unsigned char type = noSuchInstance;
    QByteArray value;
    // Written as the value's length instead of the true one, unless negative.
    qsizetype announcedLength = -1;
    // Bytes of the whole that are sent, all unless it is negative.
    qsizetype cutAfter = -1;
    // Another loopback address to send it from.
    const char *from = nullptr;
};

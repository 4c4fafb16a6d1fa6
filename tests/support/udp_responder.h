// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

#include <atomic>
#include <functional>
#include <thread>

// The response to an SNMP request for one variable; a test changes the parts that should be invalid.
struct SnmpReply
{
    static constexpr unsigned char integer = 0x02, octetString = 0x04, noSuchInstance = 0x81;

    SnmpReply with(unsigned char newType, const QByteArray &newValue) const;
    SnmpReply withString(const QByteArray &text) const { return with(octetString, text); }
    SnmpReply withInteger(char number) const { return with(integer, QByteArray(1, number)); }
    QByteArray encoded() const;

    QByteArray version, community, requestId;
    QByteArray oid; // encoded, without tag and length
    char errorStatus = 0;
    unsigned char type = noSuchInstance;
    QByteArray value;
    qsizetype announcedLength = -1; // written as the length of the value, unless negative
    QByteArray instead;             // sent instead of everything else, unless null
    const char *from = nullptr;     // another loopback address to send it from
};
using SnmpReplies = QList<SnmpReply>;

// A device on UDP port 161 of a loopback address whose responses are defined by the test, on its own thread.
// Lives as long as the object. The handler runs on that thread, receives a "no such instance" response, and
// returns the response to send.
class UdpResponder
{
public:
    using Handler = std::function<SnmpReplies(const SnmpReply &reply)>;

    UdpResponder(const char *address, Handler handler);
    ~UdpResponder();
    UdpResponder(const UdpResponder &) = delete;
    UdpResponder &operator=(const UdpResponder &) = delete;

    // Number of datagrams received.
    int requestCount() const { return m_requestCount; }

private:
    void run();

    Handler m_handler;
    int m_socket;
    int m_stop;
    std::atomic<int> m_requestCount = 0;
    std::thread m_thread;
};

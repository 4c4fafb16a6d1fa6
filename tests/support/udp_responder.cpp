// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/udp_responder.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace {

int boundSocket(const char *address, quint16 port)
{
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(port);
    ::inet_pton(AF_INET, address, &name.sin_addr);
    if (::bind(fd, reinterpret_cast<const sockaddr *>(&name), sizeof name) == 0)
        return fd;
    ::close(fd);
    return -1;
}

QByteArray tlv(unsigned char tag, const QByteArray &content, qsizetype announced = -1)
{
    const qsizetype length = announced < 0 ? content.size() : announced;
    QByteArray out(1, static_cast<char>(tag));
    if (length < 0x80) {
        out += static_cast<char>(length);
    } else {
        out += static_cast<char>(0x83);
        for (int shift = 16; shift >= 0; shift -= 8)
            out += static_cast<char>(length >> shift);
    }
    return out + content;
}

// Removes one element with a short length from the front.
QByteArray take(QByteArray &from)
{
    const qsizetype length = from.size() < 2 ? 0 : static_cast<unsigned char>(from.at(1));
    const QByteArray content = from.mid(2, length);
    from = from.mid(2 + length);
    return content;
}

SnmpReply replyTo(QByteArray request)
{
    SnmpReply reply;
    QByteArray message = take(request);
    reply.version = take(message);
    reply.community = take(message);
    QByteArray pdu = take(message);
    reply.requestId = take(pdu);
    take(pdu); // error status
    take(pdu); // error index
    QByteArray variables = take(pdu);
    QByteArray variable = take(variables);
    reply.oid = take(variable);
    return reply;
}

} // namespace

UdpResponder::UdpResponder(const char *address, Handler handler)
    : m_handler(std::move(handler)), m_socket(boundSocket(address, 161)), m_stop(::eventfd(0, EFD_CLOEXEC))
{
    if (m_socket < 0)
        qFatal("port 161 of %s is taken", address);
    m_thread = std::thread([this] { run(); });
}

UdpResponder::~UdpResponder()
{
    ::eventfd_write(m_stop, 1);
    m_thread.join();
    ::close(m_stop);
    ::close(m_socket);
}

void UdpResponder::run()
{
    std::array<pollfd, 2> waited{pollfd{m_socket, POLLIN, 0}, pollfd{m_stop, POLLIN, 0}};
    QByteArray buffer(0x1000, Qt::Uninitialized);
    while (::poll(waited.data(), waited.size(), -1) > 0 && waited[1].revents == 0) {
        sockaddr_in peer{};
        socklen_t peerSize = sizeof peer;
        auto *to = reinterpret_cast<sockaddr *>(&peer);
        const ssize_t size =
            ::recvfrom(m_socket, buffer.data(), static_cast<size_t>(buffer.size()), 0, to, &peerSize);
        if (size < 0)
            continue;
        ++m_requestCount;
        for (const SnmpReply &reply : m_handler(replyTo(buffer.first(size)))) {
            const QByteArray bytes = reply.encoded();
            const int other = reply.from == nullptr ? m_socket : boundSocket(reply.from, 0);
            ::sendto(other, bytes.constData(), static_cast<size_t>(bytes.size()), 0, to, peerSize);
            if (other != m_socket)
                ::close(other);
        }
    }
}

SnmpReply SnmpReply::with(unsigned char newType, const QByteArray &newValue) const
{
    SnmpReply reply = *this;
    reply.type = newType;
    reply.value = newValue;
    return reply;
}

QByteArray SnmpReply::encoded() const
{
    if (!instead.isNull())
        return instead;
    const QByteArray variable = tlv(0x30, tlv(0x06, oid) + tlv(type, value, announcedLength));
    const QByteArray pdu = tlv(0x02, requestId) + tlv(0x02, QByteArray(1, errorStatus)) +
                           tlv(0x02, QByteArray(1, 0)) + tlv(0x30, variable);
    return tlv(0x30, tlv(0x02, version) + tlv(0x04, community) + tlv(0xa2, pdu));
}

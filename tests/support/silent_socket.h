// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A UDP port that receives requests and answers none, during the lifetime of the object.
class SilentSocket
{
public:
    SilentSocket(const char *address, quint16 port)
        : m_socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        sockaddr_in name{};
        name.sin_family = AF_INET;
        name.sin_port = htons(port);
        ::inet_pton(AF_INET, address, &name.sin_addr);
        m_isBound = ::bind(m_socket, reinterpret_cast<const sockaddr *>(&name), sizeof name) == 0;
    }
    ~SilentSocket() { ::close(m_socket); }
    SilentSocket(const SilentSocket &) = delete;
    SilentSocket &operator=(const SilentSocket &) = delete;

    bool isBound() const { return m_isBound; }
    // Since forget().
    bool wasAsked() const
    {
        char byte = 0;
        return ::recv(m_socket, &byte, 1, MSG_PEEK) >= 0;
    }
    void forget() const
    {
        char byte = 0;
        while (::recv(m_socket, &byte, 1, 0) >= 0)
            ;
    }

private:
    int m_socket;
    bool m_isBound = false;
};

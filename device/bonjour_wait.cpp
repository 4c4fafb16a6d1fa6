// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/bonjour_wait.h"

#include "device/dnssd_handles.h"
#include "device/scoped_environment.h"

#include <QDeadlineTimer>

#include <poll.h>

#include <cerrno>
#include <exception>

namespace {

// Stands between the daemon's library and the caller's reply function: notes that the reply came, and keeps
// an exception from running through C code.
struct Relay
{
    DNSServiceResolveReply reply;
    void *context;
    bool replied = false;
    std::exception_ptr thrown;
};

void DNSSD_API relayReply(DNSServiceRef service, DNSServiceFlags flags, uint32_t interfaceIndex,
                          DNSServiceErrorType error, const char *fullName, const char *hostTarget,
                          uint16_t port, uint16_t txtLength, const unsigned char *txtRecord, void *context)
{
    auto *relay = static_cast<Relay *>(context);
    if (relay->replied)
        return;
    relay->replied = true;
    try {
        relay->reply(service, flags, interfaceIndex, error, fullName, hostTarget, port, txtLength, txtRecord,
                     relay->context);
    } catch (...) {
        relay->thrown = std::current_exception();
    }
}

} // namespace

bool bonjour::waitForReply(int descriptor, std::chrono::milliseconds budget,
                           const std::function<Progress()> &process)
{
    const QDeadlineTimer deadline(budget);
    do {
        pollfd waited{.fd = descriptor, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&waited, 1, static_cast<int>(deadline.remainingTime()));
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0 || (waited.revents & POLLIN) == 0)
            return false;
        const Progress progress = process();
        if (progress != Progress::Pending)
            return progress == Progress::Replied;
    } while (!deadline.hasExpired());
    return false;
}

void bonjour::resolveService(const char *name, const char *type, const char *domain,
                             DNSServiceResolveReply reply, void *context)
{
    // Avahi's library reminds the user on stderr that the program could use another interface of it.
    const ScopedEnvironment quiet{{"AVAHI_COMPAT_NOWARN", "1"}};
    Relay relay{.reply = reply, .context = context, .thrown = nullptr};
    DNSServiceRef started = nullptr;
    // The error is told by the missing reference.
    DNSServiceResolve(&started, 0, 0, name, type, domain, relayReply, &relay);
    DnsServiceHandle service(started);
    if (!service)
        return;
    const int descriptor = DNSServiceRefSockFD(service.get());
    if (descriptor == -1) {
        // Nothing is left that could be told of the end: the reference is given up, not deallocated.
        static_cast<void>(service.release());
        return;
    }
    // One readable descriptor need not mean a reply: Avahi's library takes two or three reads for one.
    waitForReply(descriptor, replyBudget, [&] {
        if (DNSServiceProcessResult(service.get()) != kDNSServiceErr_NoError)
            return Progress::Failed;
        return relay.replied ? Progress::Replied : Progress::Pending;
    });
    service.reset();
    if (relay.thrown)
        std::rethrow_exception(relay.thrown);
}

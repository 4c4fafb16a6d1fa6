// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/bonjour_wait.h"

#include "platform/background.h"

#include <QByteArray>

#include <poll.h>

#include <cerrno>
#include <optional>

namespace {

struct Service
{
    QByteArray name, type, domain;
};

// Arguments of a DNSServiceResolveReply. Null texts stay null.
struct Reply
{
    DNSServiceFlags flags;
    uint32_t interfaceIndex;
    DNSServiceErrorType error;
    QByteArray fullName, hostTarget;
    uint16_t port;
    QByteArray txtRecord;
};

#if KELMAR_HAS_DNSSD
void DNSSD_API keepFirstReply(DNSServiceRef, DNSServiceFlags flags, uint32_t interfaceIndex,
                              DNSServiceErrorType error, const char *fullName, const char *hostTarget,
                              uint16_t port, uint16_t txtLength, const unsigned char *txtRecord,
                              void *context)
{
    auto *kept = static_cast<std::optional<Reply> *>(context);
    if (!*kept)
        *kept = Reply{flags,
                      interfaceIndex,
                      error,
                      fullName,
                      hostTarget,
                      port,
                      {reinterpret_cast<const char *>(txtRecord), txtLength}};
}

std::optional<Reply> replyFor(const Service &asked, const QDeadlineTimer &deadline)
{
    std::optional<Reply> reply;
    DNSServiceRef started = nullptr;
    // The error is reported by the missing reference.
    DNSServiceResolve(&started, 0, 0, asked.name.constData(), asked.type.constData(),
                      asked.domain.constData(), keepFirstReply, &reply);
    DnsServiceHandle service(started);
    if (!service)
        return std::nullopt;
    const int descriptor = DNSServiceRefSockFD(service.get());
    if (descriptor == -1) {
        // Nothing can be notified of the end any more: the reference is abandoned, not deallocated.
        static_cast<void>(service.release());
        return std::nullopt;
    }
    // A readable descriptor does not guarantee a reply: Avahi's library needs two or three reads for one.
    bonjour::waitForReply(descriptor, deadline, [&] {
        if (DNSServiceProcessResult(service.get()) != kDNSServiceErr_NoError)
            return bonjour::Progress::Failed;
        return reply ? bonjour::Progress::Replied : bonjour::Progress::Pending;
    });
    return reply;
}
#else
std::optional<Reply> replyFor(const Service &, const QDeadlineTimer &)
{
    return std::nullopt;
}
#endif

} // namespace

bool bonjour::waitForReply(int descriptor, const QDeadlineTimer &deadline,
                           const std::function<Progress()> &process)
{
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
    const auto outcome =
        platform::callOnWorker([asked = Service{name, type, domain},
                                deadline = QDeadlineTimer(replyBudget)] { return replyFor(asked, deadline); },
                               replyBudget);
    const std::optional<Reply> first = outcome.value_or(std::nullopt);
    if (!first)
        return;
    const auto textOf = [](const QByteArray &text) { return text.isNull() ? nullptr : text.constData(); };
    reply(nullptr, first->flags, first->interfaceIndex, first->error, textOf(first->fullName),
          textOf(first->hostTarget), first->port, static_cast<uint16_t>(first->txtRecord.size()),
          reinterpret_cast<const unsigned char *>(first->txtRecord.constData()), context);
}

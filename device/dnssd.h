// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The DNS Service Discovery client library. A build without it (KELMAR_HAS_DNSSD is 0) only has the types of
// a reply.
#if KELMAR_HAS_DNSSD
#include <dns_sd.h>

#include <memory>
#include <type_traits>

struct DnsServiceDeallocator
{
    void operator()(DNSServiceRef service) const { DNSServiceRefDeallocate(service); }
};
using DnsServiceHandle = std::unique_ptr<std::remove_pointer_t<DNSServiceRef>, DnsServiceDeallocator>;

#else
#include <cstdint>

#define DNSSD_API
using DNSServiceRef = struct DnsServiceNone *;
using DNSServiceFlags = std::uint32_t;
using DNSServiceErrorType = std::int32_t;
using DNSServiceResolveReply = void (*)(DNSServiceRef, DNSServiceFlags, std::uint32_t interfaceIndex,
                                        DNSServiceErrorType, const char *fullName, const char *hostTarget,
                                        std::uint16_t port, std::uint16_t txtLength,
                                        const unsigned char *txtRecord, void *context);
#endif

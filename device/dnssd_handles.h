// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <dns_sd.h>

#include <memory>
#include <type_traits>

struct DnsServiceDeallocator
{
    void operator()(DNSServiceRef service) const { DNSServiceRefDeallocate(service); }
};
using DnsServiceHandle = std::unique_ptr<std::remove_pointer_t<DNSServiceRef>, DnsServiceDeallocator>;

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <optional>

namespace host {

// Asks the printer of a queue about its supplies and the media loaded in its trays. A print server knows the
// supplies only since its last job, and reports all sizes that the printer supports as loaded. Sends IPP to
// the printer if that is the protocol of the queue; if the response contains no supplies, or the queue uses
// another protocol, the program kelmar-printer-levels reads the printer's tables with SNMP. Null if the
// printer does not respond, or its address is not known. Blocks, up to half a minute; call it on a worker
// thread.
std::optional<DeviceReport> queryDevice(const Destination &printer);

} // namespace host

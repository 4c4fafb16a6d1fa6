// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>

namespace backend {

// A document and what its application said about it, as bytes that nobody has looked at.
struct Handover
{
    int document = -1; // a descriptor; borrowed
    std::string title;
    unsigned copies = 1;
    std::string options;
};

// Hands a document to the print service on the bus of the user that this process has become, and waits until
// its dialog can be seen. False with an error, one sentence.
bool handOver(uid_t uid, const Handover &handover, std::chrono::seconds patience, std::string *error);

} // namespace backend

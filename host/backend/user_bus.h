// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>

namespace backend {

// A document and the application's data for it, as bytes that have not been validated.
struct Handover
{
    int document = -1; // a descriptor; borrowed
    std::string title;
    unsigned copies = 1;
    std::string options;
};

enum class Delivery {
    Taken,   // the service has accepted the document
    Refused, // refused by an answer, or there is no session
    Silent   // nothing in the user's session responded
};

// Passes a document to the print service on the bus of the user that this process has become. Waits at most
// `connecting` for the bus and then `answering` for the service, which answers when its dialog is visible or
// when it has stored the document. Sets an error of one sentence unless the document was accepted. If the bus
// exceeds its time, SIGALRM ends the process.
Delivery handOver(uid_t uid, const Handover &handover, std::chrono::seconds connecting,
                  std::chrono::seconds answering, std::string *error);

} // namespace backend

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>

namespace backend {

// A document and what its application said about it, as bytes that have not been validated.
struct Handover
{
    int document = -1; // a descriptor; borrowed
    std::string title;
    unsigned copies = 1;
    std::string options;
};

enum class Delivery {
    Taken,   // the service has the document
    Refused, // by an answer, or there is no session
    Silent   // nothing on the user's side has answered
};

// Hands a document to the print service on the bus of the user that this process has become. Waits at most
// `connecting` for the bus and then `answering` for the service, which answers once its dialog is visible or
// once it keeps the document itself. Sets an error, one sentence, unless the document was taken. The process
// ends by SIGALRM when the bus exceeds its time.
Delivery handOver(uid_t uid, const Handover &handover, std::chrono::seconds connecting,
                  std::chrono::seconds answering, std::string *error);

} // namespace backend

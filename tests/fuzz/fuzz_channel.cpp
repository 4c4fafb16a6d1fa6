// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The service's input to a dialog process: one request, and the job that may be stored in it.

#include "host/portal/dialog_channel.h"
#include "host/portal/stored_job.h"
#include "host/service/portal_settings.h"
#include "tests/fuzz/fuzz_support.h"

#include <sys/mman.h>
#include <unistd.h>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const int fd = ::memfd_create("input", MFD_CLOEXEC);
    requireThat(fd >= 0 && ::write(fd, data, size) == static_cast<ssize_t>(size));
    ::lseek(fd, 0, SEEK_SET);
    ::dup2(fd, STDIN_FILENO);
    ::close(fd);
    static host::DialogChannel channel;
    const auto request = channel.readRequest();
    if (!request)
        return 0;
    const auto job = host::StoredJob::fromJson(*request);
    requireThat(host::StoredJob::fromJson(job.toJson()).options == job.options);
    host::startingSettings(request->value(QLatin1String("settings")).toObject(),
                           request->value(QLatin1String("pageSetup")).toObject());
    return 0;
}

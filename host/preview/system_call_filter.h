// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <linux/filter.h>

#include <vector>

namespace host {

// The seccomp program for programs that read documents. It refuses, with EPERM, all calls that affect more
// than the process and its files: sockets, signals, other processes, sessions and process groups, permissions
// of files, namespaces, mounts and system administration. Built on first use and kept for the lifetime of
// this process. Empty if libseccomp or the kernel does not support it. Thread-safe.
const std::vector<sock_filter> &systemCallFilter();

} // namespace host

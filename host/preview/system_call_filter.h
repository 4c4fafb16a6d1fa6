// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <linux/filter.h>

#include <vector>

namespace host {

// The seccomp program for those that read documents. It refuses, with EPERM, all that reaches beyond the
// process and its files: sockets, signals, other processes, sessions and process groups, permissions of
// files, namespaces, mounts and what administers the machine. Built on first use, kept for the life of this
// process. Empty where libseccomp or the kernel cannot do it. Thread-safe.
const std::vector<sock_filter> &systemCallFilter();

} // namespace host

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
# What is installed must run from there, with its panels. Usage: install_test.sh BUILDDIR
set -euo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$1" --prefix "$prefix" >/dev/null
# The build folder's libraries must not be what is found.
summary=$(env -u LD_LIBRARY_PATH "$prefix/bin/kelmar-print" --ppd "$1/ppds/kelm880.ppd" --summary \
    --set DeptCode=True --set departmentCode=01230)
grep -q '(01230)' <<<"$summary" || { echo "$summary" && exit 1; }
[ -f "$prefix/share/man/man1/kelmar-print.1" ]

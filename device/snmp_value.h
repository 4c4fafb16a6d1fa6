// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "device/snmp_library.h"

#include <QVariant>

// The value of one variable of a response: a 32-bit integer, a boolean, or a string (bytes if `stringsAsData`
// is set). Null for other types, for a value that is missing or shorter than its type, and for bytes that are
// not valid in the encoding.
QVariant valueOfVariable(const netsnmp_variable_list &variable, quint32 charSet, bool stringsAsData);

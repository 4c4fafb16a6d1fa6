// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

class QWidget;

namespace platform {

// Prevents the wheel from changing or focusing a control that does not have the focus. The wheel then scrolls
// the surrounding area. Call once for a control, on the thread of the user interface.
KELMAR_PLATFORM_EXPORT void guardFromWheel(QWidget *control);

} // namespace platform

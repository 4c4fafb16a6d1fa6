// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

namespace host {

// Prevents the wheel from changing or focusing a control that does not have the focus. The wheel then scrolls
// the surrounding area, as with platform::ChoiceBox. Call once for a control.
void guardFromWheel(QWidget *control);

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

namespace host {

// In a window from right to left: has every label keep to the side that its layout means, also one whose text
// runs from left to right, such as the name of an option that the PPD has in English only. Labels choose the
// side by their text otherwise. Does nothing in other windows, and nothing to labels that it has seen.
void keepLabelsAligned(QWidget *window);

} // namespace host

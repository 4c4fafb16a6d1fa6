// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

namespace host {

// In a right-to-left window, aligns all labels as intended by the layout, including labels with left-to-right
// text, such as option names that the PPD has only in English. By default labels are aligned according to
// their text. Does nothing in other windows, and skips labels that were already processed.
void keepLabelsAligned(QWidget *window);

} // namespace host

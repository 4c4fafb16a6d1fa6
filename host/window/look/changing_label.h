// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QLabel;
class QString;

namespace host {

// Shows a text that screen readers announce, in a new label in place of `label`, and returns the new one. It
// has the font of `label`, which is in the layout of its parent. The parent owns both.
//
// A screen reader that receives an announcement late reads the current text of the label, so with a single
// label it would read the last text several times. It would read an empty text if the label no longer
// existed, so the replaced label is hidden, and deleted later.
[[nodiscard]] QLabel *showAnnounced(QLabel *label, const QString &text);

} // namespace host

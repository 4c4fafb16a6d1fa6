// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QWidget>

namespace host {

// Sets the tab order of the parts of a window; the order within each part does not change. If a part contains
// another one, the one that is listed first comes first.
void chainTabOrder(const QList<QWidget *> &parts);

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QWidget>

namespace host {

// What of a part of a window the Tab key reaches when it is shown and enabled, in the order of the present
// focus chain; the part itself included.
QList<QWidget *> tabStops(QWidget *part);

// Makes the Tab key go from part to part of a window in this order; within each the order stays as it is. A
// part within another one comes first where it is named first.
void chainTabOrder(const QList<QWidget *> &parts);

} // namespace host

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRectF>

class QWidget;

// The position of a view in its superview.
namespace QVViewUtilities_M880 {

// The view's size, centred in the superview's frame, not rounded; all zeros for a view without a superview.
QRectF centeredInSuperviewFrame(const QWidget *view);
// Centres the view, at whole pixels; a view without a superview moves to 0, 0.
void centerInSuperview(QWidget *view);

} // namespace QVViewUtilities_M880

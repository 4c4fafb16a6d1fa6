// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/view_utilities.h"

#include <QWidget>

QRectF QVViewUtilities_M880::centeredInSuperviewFrame(const QWidget *view)
{
    const QWidget *superview = view->parentWidget();
    if (!superview)
        return {0, 0, 0, 0};
    const QSizeF size = view->size();
    const QSizeF around = superview->size();
    return {QPointF((around.width() - size.width()) * 0.5, (around.height() - size.height()) * 0.5), size};
}

void QVViewUtilities_M880::centerInSuperview(QWidget *view)
{
    view->move(centeredInSuperviewFrame(view).topLeft().toPoint());
}

// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/text_direction.h"

#include <QLabel>
#include <QStyle>

namespace host {

void keepLabelsAligned(QWidget *window)
{
    if (!window->isRightToLeft())
        return;
    for (QLabel *label : window->findChildren<QLabel *>()) {
        const Qt::Alignment meant = label->alignment();
        if (!(meant & Qt::AlignAbsolute))
            label->setAlignment(QStyle::visualAlignment(Qt::RightToLeft, meant) | Qt::AlignAbsolute);
    }
}

} // namespace host

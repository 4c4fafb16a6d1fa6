// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFrame>

namespace host {

// A hairline between the parts of the dialog.
class Separator : public QFrame
{
public:
    Separator(Qt::Orientation orientation, QWidget *parent) : QFrame(parent)
    {
        setFrameShadow(QFrame::Plain);
        setForegroundRole(QPalette::Midlight);
        if (orientation == Qt::Horizontal) {
            setFrameShape(QFrame::HLine);
            setFixedHeight(1);
        } else {
            setFrameShape(QFrame::VLine);
            setFixedWidth(1);
        }
    }
};

} // namespace host
